// The numbers of the dialogs, controls and strings. Numbers only: the resource compiler reads this file too.
// Two numbers mean different controls on different dialogs: 842 is a combo on dialog 100 and a slider on 101
// and 103, 844 is a combo on dialog 100 and a button elsewhere.
#pragma once

#define IDM_MANIFEST 2

#define IDD_PORT_SETTINGS 100
#define IDD_ADVANCED_PORT_SETTINGS 101
#define IDD_PORT_CONTROL 103
#define IDD_ADVANCED_PORT_CONTROL 104

#define IDC_PORT_LIST 301
#define IDC_RESOURCE_LIST 302
#define IDC_RECEIVE_SLIDER 821
#define IDC_ADVANCED 840
#define IDC_BAUD_RATE 841
#define IDC_DATA_BITS 842
#define IDC_TRANSMIT_SLIDER 842
#define IDC_PARITY 843
#define IDC_STOP_BITS 844
#define IDC_RESTORE 844
#define IDC_FLOW_CONTROL 845
#define IDC_PORT_NUMBER 846
#define IDC_POLLING_CYCLE 847
#define IDC_RECEIVE_CAPTION 890
#define IDC_TRANSMIT_CAPTION 891
#define IDC_RESTORE_PORT 892
#define IDC_PORT_NUMBER_CAPTION 895
#define IDC_TRANSMIT_LOW 1000
#define IDC_RECEIVE_LOW 1001
#define IDC_RECEIVE_HIGH 1002
#define IDC_TRANSMIT_HIGH 1003
#define IDC_LARGEFIFO 1039
#define IDC_SET_TO_ALL 1040
#define IDC_APPLY 1041
#define IDC_ACS_ENABLE 1044
#define IDC_INTERFACE_SELECT 1045
#define IDC_INTERFACE_CAPTION 1046
#define IDC_TERMINATION_ENABLE 1047
#define IDC_SORT_COM 1054
#define IDC_POLLING_CYCLE_CAPTION 1056

#define IDS_OUT_OF_MEMORY 0
#define IDS_OUT_OF_MEMORY_CAPTION 1
#define IDS_NAME_IN_USE_QUESTION 5
#define IDS_PARITY_LIST 11
#define IDS_STOP_BITS_LIST 12
#define IDS_FLOW_CONTROL_LIST 13
#define IDS_ADVANCED_SETTINGS_TITLE 19
#define IDS_LOW 52
#define IDS_HIGH 53
#define IDS_BOX_CAPTION 57
#define IDS_RENAME_FAILED 61
#define IDS_IN_USE_SUFFIX 62
#define IDS_RESOURCE_TYPE 70
#define IDS_SETTING 71
#define IDS_IO_RANGE 72
#define IDS_IRQ 74
