// The list box and the drop-down list: both hold unsorted items, one of them selected or none.
#include "platform/simulated/window.h"

namespace sim {
namespace {

static_assert(LB_ERR == CB_ERR);

struct Items {
    std::vector<Text> texts;
    LRESULT selection = LB_ERR;

    bool Has(WPARAM index) const { return index < texts.size(); }
    std::u16string_view Selected() const {
        return selection == LB_ERR ? std::u16string_view{} : texts[static_cast<std::size_t>(selection)];
    }

    LRESULT Add(LPARAM text) {
        if (text == 0) {
            return LB_ERR;
        }
        texts.emplace_back(MessageText(text));
        return static_cast<LRESULT>(texts.size()) - 1;
    }
    // An index that is no item clears the selection.
    LRESULT Select(WPARAM index) {
        selection = Has(index) ? static_cast<LRESULT>(index) : LB_ERR;
        return selection;
    }
    LRESULT Reset() {
        texts.clear();
        selection = LB_ERR;
        return 0;
    }
    LRESULT Length(WPARAM index) const {
        return Has(index) ? static_cast<LRESULT>(texts[index].size()) : LB_ERR;
    }
    // The caller of these messages guarantees the room.
    LRESULT Copy(WPARAM index, LPARAM buffer) const {
        return Has(index) ? CopyOut(texts[index], reinterpret_cast<LPWSTR>(buffer), texts[index].size() + 1)
                          : LB_ERR;
    }
    // Searches once around from the item after `start`; -1 begins at the top.
    LRESULT Find(WPARAM start, LPARAM beginning) const {
        const std::u16string_view wanted = MessageText(beginning);
        const std::size_t first = Has(start) ? start + 1 : 0;
        for (std::size_t step = 0; beginning != 0 && step < texts.size(); ++step) {
            const std::size_t index = (first + step) % texts.size();
            if (EqualNoCase(std::u16string_view(texts[index]).substr(0, wanted.size()), wanted)) {
                return static_cast<LRESULT>(index);
            }
        }
        return CB_ERR;
    }
};

// Item indices travel as 32-bit numbers.
WPARAM Index(WPARAM wParam) {
    return static_cast<UINT>(wParam);
}

struct ListBox : Window {
    Items items;

    ListBox() : Window(u"ListBox") {}

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case LB_ADDSTRING:
            return items.Add(lParam);
        case LB_RESETCONTENT:
            return items.Reset();
        case LB_SETCURSEL:
            return items.Select(Index(wParam));
        case LB_GETCURSEL:
            return items.selection;
        case LB_GETTEXT:
            return items.Copy(Index(wParam), lParam);
        case LB_GETTEXTLEN:
            return items.Length(Index(wParam));
        case LB_GETCOUNT:
            return static_cast<LRESULT>(items.texts.size());
        default:
            return Window::Answer(message, wParam, lParam);
        }
    }
};

struct ComboBox : Window {
    Items items;

    ComboBox() : Window(u"ComboBox") {}

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case CB_ADDSTRING:
            return items.Add(lParam);
        case CB_RESETCONTENT:
            return items.Reset();
        case CB_SETCURSEL:
            return items.Select(Index(wParam));
        case CB_GETCURSEL:
            return items.selection;
        case CB_GETLBTEXT:
            return items.Copy(Index(wParam), lParam);
        case CB_GETLBTEXTLEN:
            return items.Length(Index(wParam));
        case CB_GETCOUNT:
            return static_cast<LRESULT>(items.texts.size());
        case CB_FINDSTRING:
            return items.Find(Index(wParam), lParam);
        // A drop-down list has no text of its own.
        case WM_GETTEXT:
            return CopyOut(items.Selected(), reinterpret_cast<LPWSTR>(lParam), wParam);
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(items.Selected().size());
        case WM_SETTEXT:
            return CB_ERR;
        default:
            return Window::Answer(message, wParam, lParam);
        }
    }
};

} // namespace

std::unique_ptr<Window> MakeListBox() {
    return std::make_unique<ListBox>();
}
std::unique_ptr<Window> MakeComboBox() {
    return std::make_unique<ComboBox>();
}

} // namespace sim
