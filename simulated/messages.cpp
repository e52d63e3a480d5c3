// Sending messages. The answer of a message that was made to fail depends on the message, so each one that
// the logic sends is listed here with its name, that answer and the parameters that it reads. The others must
// be 0, and what moves a slider must have it redrawn.
#include <algorithm>

#include "simulated/stage.h"
#include "simulated/window.h"

namespace sim {
namespace {

enum class Reads { Nothing, WParam, LParam, Both, LParamAndRedraws };

struct MessageKind {
    UINT message;
    std::string_view name;
    LRESULT undelivered;
    Reads reads;
};

#define KIND(message, undelivered, reads)                                                                    \
    { message, #message, undelivered, Reads::reads }

// By number.
constexpr MessageKind kinds[] = {
    KIND(WM_SETTEXT, FALSE, LParam),
    KIND(WM_GETTEXT, 0, Both),
    KIND(WM_GETTEXTLENGTH, 0, Nothing),
    KIND(WM_CLOSE, 0, Nothing),
    KIND(WM_WININICHANGE, 0, LParam),
    KIND(WM_NOTIFY, 0, Both),
    KIND(BM_GETCHECK, BST_UNCHECKED, Nothing),
    KIND(BM_SETCHECK, 0, WParam),
    KIND(BM_CLICK, 0, Nothing),
    KIND(WM_COMMAND, 0, Both),
    KIND(WM_HSCROLL, 0, Both),
    KIND(CB_ADDSTRING, CB_ERRSPACE, LParam),
    KIND(CB_GETCOUNT, CB_ERR, Nothing),
    KIND(CB_GETCURSEL, CB_ERR, Nothing),
    KIND(CB_GETLBTEXT, CB_ERR, Both),
    KIND(CB_GETLBTEXTLEN, CB_ERR, WParam),
    KIND(CB_RESETCONTENT, CB_ERR, Nothing),
    KIND(CB_FINDSTRING, CB_ERR, Both),
    KIND(CB_SETCURSEL, CB_ERR, WParam),
    KIND(LB_ADDSTRING, LB_ERR, LParam),
    KIND(LB_RESETCONTENT, LB_ERR, Nothing),
    KIND(LB_SETCURSEL, LB_ERR, WParam),
    KIND(LB_GETCURSEL, LB_ERR, Nothing),
    KIND(LB_GETTEXT, LB_ERR, Both),
    KIND(LB_GETTEXTLEN, LB_ERR, WParam),
    KIND(LB_GETCOUNT, LB_ERR, Nothing),
    KIND(TBM_GETPOS, 0, Nothing),
    KIND(TBM_GETRANGEMIN, 0, Nothing),
    KIND(TBM_GETRANGEMAX, 0, Nothing),
    KIND(TBM_SETPOS, 0, LParamAndRedraws),
    KIND(TBM_SETRANGE, 0, LParamAndRedraws),
    KIND(PSM_CHANGED, 0, WParam),
    KIND(PSM_PRESSBUTTON, 0, WParam),
    KIND(LVM_GETITEMCOUNT, 0, Nothing),
    KIND(LVM_DELETEALLITEMS, FALSE, Nothing),
    KIND(LVM_GETCOLUMNWIDTH, 0, WParam),
    KIND(LVM_SETITEMW, FALSE, LParam),
    KIND(LVM_INSERTITEMW, -1, LParam),
    KIND(LVM_GETCOLUMNW, FALSE, Both),
    KIND(LVM_INSERTCOLUMNW, -1, Both),
    KIND(LVM_GETITEMTEXTW, 0, Both),
};
static_assert(std::ranges::is_sorted(kinds, {}, &MessageKind::message));

constexpr MessageKind unnamed{0, "", 0, Reads::Both};

const MessageKind& KindOf(UINT message) {
    const auto found = std::ranges::lower_bound(kinds, message, {}, &MessageKind::message);
    return found != std::end(kinds) && found->message == message ? *found : unnamed;
}

void ExpectItsParameters(const MessageKind& kind, WPARAM wParam, LPARAM lParam) {
    const bool reads_first = kind.reads == Reads::WParam || kind.reads == Reads::Both;
    const WPARAM otherwise = kind.reads == Reads::LParamAndRedraws ? TRUE : 0;
    const bool reads_second = kind.reads != Reads::Nothing && kind.reads != Reads::WParam;
    if ((!reads_first && wParam != otherwise) || (!reads_second && lParam != 0)) {
        Misuse(std::string(kind.name) + ": a parameter that it does not take");
    }
}

LRESULT Send(std::string_view operation, Window* window, UINT message, WPARAM wParam, LPARAM lParam) {
    const MessageKind& kind = KindOf(message);
    ExpectItsParameters(kind, wParam, lParam);
    const auto detail = [&] {
        std::string number = NumberOf(window);
        return number.append(number.empty() ? "" : " ").append(kind.name);
    };
    if (Operation(Reach::Screen, operation, detail)) {
        return kind.undelivered;
    }
    return window == nullptr ? 0 : window->Answer(message, wParam, lParam);
}

} // namespace
} // namespace sim

LRESULT SendMessageW(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    return sim::Send(__func__, sim::WindowOf(handle, __func__), message, wParam, lParam);
}

LRESULT SendDlgItemMessageW(HWND handle, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    const sim::Window* dialog = sim::WindowOf(handle, __func__);
    sim::Window* control = dialog == nullptr ? nullptr : dialog->Child(id);
    return sim::Send(__func__, control, message, wParam, lParam);
}

// A broadcast goes to other programs; none runs in this machine.
BOOL SendNotifyMessageW(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (handle != HWND_BROADCAST) {
        sim::Window* window = sim::WindowOf(handle, __func__);
        sim::Send(__func__, window, message, wParam, lParam);
        return window != nullptr;
    }
    sim::ExpectItsParameters(sim::KindOf(message), wParam, lParam);
    return !sim::Operation(sim::Reach::Write, __func__, [=] {
        return std::string(sim::KindOf(message).name) + ' ' + sim::Quoted(sim::MessageText(lParam));
    });
}
