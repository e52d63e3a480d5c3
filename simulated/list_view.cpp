// The list view in its report form: columns, and rows of texts.
#include <algorithm>

#include "simulated/window.h"

namespace sim {
namespace {

struct Column {
    Text heading;
    int width = 10; // pixels; for a column that doesn't give one
};

struct ListView : Window {
    std::vector<Column> columns;
    std::vector<std::vector<Text>> rows; // a text for each column; the first exists even without columns

    ListView() : Window(u"SysListView32") {}

    static std::u16string_view TextOf(LPCWSTR text) { return MessageText(reinterpret_cast<LPARAM>(text)); }
    bool HasColumn(WPARAM index) const { return index < columns.size(); }

    LRESULT InsertColumn(int wanted, const LVCOLUMNW& column) {
        if (wanted < 0) {
            return -1;
        }
        const auto index = std::min<std::ptrdiff_t>(wanted, std::ssize(columns));
        Column& fresh = *columns.emplace(columns.begin() + index);
        if (column.mask & LVCF_TEXT) {
            fresh.heading = TextOf(column.pszText);
        }
        if (column.mask & LVCF_WIDTH) {
            fresh.width = column.cx;
        }
        for (auto& row : rows) {
            if (row.size() < columns.size()) {
                row.emplace(row.begin() + index);
            }
        }
        return index;
    }

    LRESULT ReadColumn(WPARAM index, LVCOLUMNW& column) const {
        if (!HasColumn(index)) {
            return FALSE;
        }
        if (column.mask & LVCF_TEXT) {
            CopyOut(columns[index].heading, column.pszText,
                    static_cast<std::size_t>(std::max(column.cchTextMax, 0)));
        }
        if (column.mask & LVCF_WIDTH) {
            column.cx = columns[index].width;
        }
        return TRUE;
    }

    LRESULT InsertItem(const LVITEMW& item) {
        if (item.iItem < 0 || item.iSubItem != 0) {
            return -1;
        }
        const auto index = std::min<std::ptrdiff_t>(item.iItem, std::ssize(rows));
        auto& row = *rows.emplace(rows.begin() + index, std::max<std::size_t>(columns.size(), 1));
        if (item.mask & LVIF_TEXT) {
            row[0] = TextOf(item.pszText);
        }
        return index;
    }

    // The cell that an item refers to, or null.
    Text* Cell(int row, int column) {
        const bool is_there = row >= 0 && row < std::ssize(rows) && column >= 0 &&
                              column < std::ssize(rows[static_cast<std::size_t>(row)]);
        return is_there ? &rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] : nullptr;
    }

    LRESULT SetItem(const LVITEMW& item) {
        Text* cell = Cell(item.iItem, item.iSubItem);
        if (cell != nullptr && item.mask & LVIF_TEXT) {
            *cell = TextOf(item.pszText);
        }
        return cell != nullptr;
    }

    LRESULT ReadItem(int row, const LVITEMW& item) {
        const Text* cell = Cell(row, item.iSubItem);
        return CopyOut(cell != nullptr ? *cell : Text{}, item.pszText,
                       static_cast<std::size_t>(std::max(item.cchTextMax, 0)));
    }

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case LVM_GETITEMCOUNT:
            return std::ssize(rows);
        case LVM_DELETEALLITEMS:
            rows.clear();
            return TRUE;
        case LVM_INSERTCOLUMNW:
            return InsertColumn(static_cast<int>(wParam), *reinterpret_cast<const LVCOLUMNW*>(lParam));
        case LVM_GETCOLUMNW:
            return ReadColumn(wParam, *reinterpret_cast<LVCOLUMNW*>(lParam));
        case LVM_GETCOLUMNWIDTH:
            return HasColumn(wParam) ? columns[wParam].width : 0;
        case LVM_INSERTITEMW:
            return InsertItem(*reinterpret_cast<const LVITEMW*>(lParam));
        case LVM_SETITEMW:
            return SetItem(*reinterpret_cast<const LVITEMW*>(lParam));
        case LVM_GETITEMTEXTW:
            return ReadItem(static_cast<int>(wParam), *reinterpret_cast<const LVITEMW*>(lParam));
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        default:
            return Window::Answer(message, wParam, lParam);
        }
    }
};

} // namespace

std::unique_ptr<Window> MakeListView() {
    return std::make_unique<ListView>();
}

} // namespace sim
