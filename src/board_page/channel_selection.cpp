#include "board_page/channel_selection.h"

#include "device_model/channel_list.h"
#include "resources/resource_ids.h"

BoardParams* PageParams(HWND hDlg) {
    return reinterpret_cast<BoardParams*>(GetWindowLongPtrW(hDlg, DWLP_USER));
}

INT SelectedChannel(HWND hDlg) {
    return static_cast<INT>(SendDlgItemMessageW(hDlg, IDC_PORT_LIST, LB_GETCURSEL, 0, 0));
}

BPPCHL* ChannelAt(const BoardParams* params, INT index) {
    return BoardChlByListIndex(params, static_cast<u32>(index));
}
