// The list box and the drop-down list: both hold unsorted items, one of them selected or none.
#include <algorithm>
#include <utility>

#include "simulated/window.h"

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
    // An index without an item clears the selection.
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
    // The caller of these messages guarantees that the buffer is large enough.
    LRESULT Copy(WPARAM index, LPARAM buffer) const {
        return Has(index) ? CopyOut(texts[index], reinterpret_cast<LPWSTR>(buffer), texts[index].size() + 1)
                          : LB_ERR;
    }
    // Searches once around from the item after `start`; -1 begins at the top. Nothing is found from a place
    // that is not there, and no item begins with nothing.
    LRESULT Find(LRESULT start, LPARAM beginning) const {
        const std::u16string_view wanted = MessageText(beginning);
        const bool finds = !wanted.empty() && (start == CB_ERR || Has(static_cast<WPARAM>(start)));
        const std::size_t first = static_cast<std::size_t>(start + 1);
        for (std::size_t step = 0; finds && step < texts.size(); ++step) {
            const std::size_t index = (first + step) % texts.size();
            if (EqualNoCase(std::u16string_view(texts[index]).substr(0, wanted.size()), wanted)) {
                return static_cast<LRESULT>(index);
            }
        }
        return CB_ERR;
    }
    // The item to which a key moves the selection, with `page` items in sight. LB_ERR for any other key and
    // if there are no items.
    LRESULT Reached(WPARAM key, LRESULT page) const {
        const LRESULT last = static_cast<LRESULT>(texts.size()) - 1;
        const LRESULT step = std::max<LRESULT>(page - 1, 1);
        const struct {
            WPARAM key;
            LRESULT wanted;
        } moves[] = {
            {VK_UP, selection - 1},
            {VK_LEFT, selection - 1},
            {VK_DOWN, selection + 1},
            {VK_RIGHT, selection + 1},
            {VK_PRIOR, selection - step},
            {VK_NEXT, selection + step},
            {VK_HOME, 0},
            {VK_END, last},
        };
        const auto move = std::ranges::find_if(moves, [&](const auto& one) { return one.key == key; });
        return move == std::end(moves) || last < 0 ? LB_ERR : std::clamp<LRESULT>(move->wanted, 0, last);
    }
};

// The letters typed in a row, as long as an item begins with them.
struct Typing {
    Text beginning;

    // The item that begins with what has been typed or, if there is none, the next one with this letter.
    LRESULT Find(const Items& items, WPARAM letter) {
        beginning += static_cast<char16_t>(letter);
        LRESULT found =
            beginning.size() > 1 ? FindFrom(items, std::max<LRESULT>(items.selection - 1, LB_ERR)) : LB_ERR;
        if (found == LB_ERR) {
            beginning = static_cast<char16_t>(letter);
            found = FindFrom(items, items.selection);
        }
        return found;
    }

private:
    LRESULT FindFrom(const Items& items, LRESULT start) const {
        return items.Find(start, reinterpret_cast<LPARAM>(beginning.c_str()));
    }
};

// How many items fit into that height.
LRESULT ItemsIn(LONG height) {
    return height / PixelsDown(8);
}

// Item indices travel as 32-bit numbers.
WPARAM Index(WPARAM wParam) {
    return static_cast<UINT>(wParam);
}

struct ListBox : Window {
    Items items;
    Typing typing;

    ListBox() : Window(u"ListBox") {}

    LRESULT TakeKey(WPARAM key) {
        typing = {};
        return Choose(items.Reached(key, ItemsIn(place.bottom - place.top)));
    }
    LRESULT Choose(LRESULT item) {
        if (item != LB_ERR) {
            items.Select(static_cast<WPARAM>(item));
            TellParent(*this, WM_COMMAND, MAKEWPARAM(id, LBN_SELCHANGE));
        }
        return 0;
    }

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
        case WM_KEYDOWN:
            return TakeKey(wParam);
        case WM_CHAR:
            return Choose(typing.Find(items, wParam));
        case WM_SETFOCUS:
            TellParent(*this, WM_COMMAND, MAKEWPARAM(id, LBN_SETFOCUS));
            return 0;
        case WM_KILLFOCUS:
            typing = {};
            TellParent(*this, WM_COMMAND, MAKEWPARAM(id, LBN_KILLFOCUS));
            return 0;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        default:
            return Window::Answer(message, wParam, lParam);
        }
    }
};

// Dialog units of a combo whose list is shut.
constexpr int closed_height = 12;

struct ComboBox : Window {
    Items items;
    Typing typing;
    bool is_dropped = false;

    ComboBox() : Window(u"ComboBox") {}

    void Notify(WORD code) { TellParent(*this, WM_COMMAND, MAKEWPARAM(id, code)); }

    LRESULT Drop(bool drop, WORD end = CBN_SELENDOK) {
        if (drop != is_dropped) {
            is_dropped = drop;
            if (!drop) {
                Notify(end);
            }
            Notify(drop ? CBN_DROPDOWN : CBN_CLOSEUP);
        }
        return TRUE;
    }

    // Cancels the choice, whether or not the list is open.
    void LoseFocus() {
        const bool closes = std::exchange(is_dropped, false);
        Notify(CBN_SELENDCANCEL);
        if (closes) {
            Notify(CBN_CLOSEUP);
        }
        Notify(CBN_KILLFOCUS);
    }

    LRESULT Choose(LRESULT item) {
        if (item != CB_ERR) {
            items.Select(static_cast<WPARAM>(item));
            if (!is_dropped) {
                Notify(CBN_SELENDOK);
            }
            Notify(CBN_SELCHANGE);
        }
        return 0;
    }

    LRESULT TakeKey(WPARAM key) {
        typing = {};
        if (key == VK_F4) {
            return Drop(!is_dropped);
        }
        if (is_dropped && (key == VK_RETURN || key == VK_ESCAPE)) {
            return Drop(false, key == VK_RETURN ? CBN_SELENDOK : CBN_SELENDCANCEL);
        }
        return Choose(items.Reached(key, ItemsIn(place.bottom - place.top - PixelsDown(closed_height))));
    }

    // While its list is open, the combo handles Enter and Esc itself.
    LRESULT Code(const MSG* message) const {
        const bool closes = is_dropped && message != nullptr && message->message == WM_KEYDOWN &&
                            (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE);
        return DLGC_WANTARROWS | DLGC_WANTCHARS | (closes ? DLGC_WANTMESSAGE : 0);
    }

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
            return items.Find(static_cast<INT>(wParam), lParam);
        case CB_SHOWDROPDOWN:
            return Drop(wParam != FALSE);
        case CB_GETDROPPEDSTATE:
            return is_dropped;
        case WM_KEYDOWN:
            return TakeKey(wParam);
        case WM_SYSKEYDOWN:
            return wParam == VK_DOWN || wParam == VK_UP ? Drop(!is_dropped) : 0;
        case WM_CHAR:
            return Choose(typing.Find(items, wParam));
        case WM_SETFOCUS:
            Notify(CBN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            typing = {};
            LoseFocus();
            return 0;
        case WM_GETDLGCODE:
            return Code(reinterpret_cast<const MSG*>(lParam));
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
