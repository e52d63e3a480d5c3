#include "board_page/resource_list.h"

#include "page_parts/label_text.h"
#include "reporting/module_entry.h"
#include "reporting/trace.h"
#include "resources/resource_ids.h"

namespace {

constexpr UINT ColumnHeadings[] = {IDS_RESOURCE_TYPE, IDS_SETTING};
constexpr int ColumnWidth = 120; // pixels

void AddRow(HWND list, int row, UINT labelId, WCHAR* setting) {
    WCHAR label[ControlTextCapacity];
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    if (LoadStringW(ModuleInstance, labelId, label, ARRAYSIZE(label)) != 0) {
        item.pszText = label;
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    // Without a label there is no row, and the setting goes nowhere.
    item.iSubItem = 1;
    item.pszText = setting;
    SendMessageW(list, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

void AddRows(HWND list, const ChannelInfo& info) {
    const ChlBasicInfo& chl = info.ChlBasic;
    const struct {
        u64 start;
        u32 length;
    } ranges[] = {
        {chl.ChlEventAddr, chl.ChlEventLength},
        {chl.ChlMemAddr, chl.ChlMemLength},
        {chl.ChlPortAddr, chl.ChlPortLength},
    };
    WCHAR setting[ControlTextCapacity];
    int row = 0;
    for (const auto& range : ranges) {
        if (range.start != 0 && range.length != 0) {
            FormatText(setting, ARRAYSIZE(setting), TEXT("0x%I64X - 0x%I64X"), range.start,
                       range.start + range.length);
            AddRow(list, row++, IDS_IO_RANGE, setting);
        }
    }
    const u32 irq = info.BoardBasic.BoardIrq;
    if (irq != 0) {
        FormatText(setting, ARRAYSIZE(setting), TEXT("%d"), irq);
        AddRow(list, row, IDS_IRQ, setting);
    }
}

} // namespace

void AddResourceColumns(HWND hDlg) {
    const HWND list = GetDlgItem(hDlg, IDC_RESOURCE_LIST);
    for (u32 position = 0; position < ARRAYSIZE(ColumnHeadings); ++position) {
        WCHAR heading[ControlTextCapacity];
        if (LoadStringW(ModuleInstance, ColumnHeadings[position], heading, ARRAYSIZE(heading)) != 0) {
            LVCOLUMNW column = {};
            column.mask = LVCF_TEXT | LVCF_WIDTH;
            column.cx = ColumnWidth;
            column.pszText = heading;
            SendMessageW(list, LVM_INSERTCOLUMNW, position, reinterpret_cast<LPARAM>(&column));
        }
    }
}

void _FillResourceList(HWND hDlg, const BPPCHL* channel) {
    TraceScope trace;
    const HWND list = GetDlgItem(hDlg, IDC_RESOURCE_LIST);
    SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    if (channel != nullptr) {
        AddRows(list, channel->CurrentInfo);
    }
}
