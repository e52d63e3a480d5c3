// Sending messages. What a message that is made to fail answers depends on the message, so each one that the
// logic sends is listed here with its name and that answer.
#include <algorithm>

#include "platform/simulated/stage.h"
#include "platform/simulated/window.h"

namespace sim {
namespace {

struct MessageKind {
    UINT message;
    std::string_view name;
    LRESULT undelivered;
};

#define KIND(message, undelivered)                                                                           \
    { message, #message, undelivered }

// By number.
constexpr MessageKind kinds[] = {
    KIND(WM_SETTEXT, FALSE),
    KIND(WM_GETTEXT, 0),
    KIND(WM_GETTEXTLENGTH, 0),
    KIND(WM_CLOSE, 0),
    KIND(WM_WININICHANGE, 0),
    KIND(WM_NOTIFY, 0),
    KIND(BM_GETCHECK, BST_UNCHECKED),
    KIND(BM_SETCHECK, 0),
    KIND(BM_CLICK, 0),
    KIND(WM_COMMAND, 0),
    KIND(WM_HSCROLL, 0),
    KIND(CB_ADDSTRING, CB_ERRSPACE),
    KIND(CB_GETCOUNT, CB_ERR),
    KIND(CB_GETCURSEL, CB_ERR),
    KIND(CB_GETLBTEXT, CB_ERR),
    KIND(CB_GETLBTEXTLEN, CB_ERR),
    KIND(CB_RESETCONTENT, CB_ERR),
    KIND(CB_FINDSTRING, CB_ERR),
    KIND(CB_SETCURSEL, CB_ERR),
    KIND(LB_ADDSTRING, LB_ERR),
    KIND(LB_RESETCONTENT, LB_ERR),
    KIND(LB_SETCURSEL, LB_ERR),
    KIND(LB_GETCURSEL, LB_ERR),
    KIND(LB_GETTEXT, LB_ERR),
    KIND(LB_GETTEXTLEN, LB_ERR),
    KIND(LB_GETCOUNT, LB_ERR),
    KIND(TBM_GETPOS, 0),
    KIND(TBM_GETRANGEMIN, 0),
    KIND(TBM_GETRANGEMAX, 0),
    KIND(TBM_SETPOS, 0),
    KIND(TBM_SETRANGE, 0),
    KIND(PSM_CHANGED, 0),
    KIND(PSM_PRESSBUTTON, 0),
    KIND(LVM_GETITEMCOUNT, 0),
    KIND(LVM_DELETEALLITEMS, FALSE),
    KIND(LVM_GETCOLUMNWIDTH, 0),
    KIND(LVM_SETITEMW, FALSE),
    KIND(LVM_INSERTITEMW, -1),
    KIND(LVM_GETCOLUMNW, FALSE),
    KIND(LVM_INSERTCOLUMNW, -1),
    KIND(LVM_GETITEMTEXTW, 0),
};
static_assert(std::ranges::is_sorted(kinds, {}, &MessageKind::message));

constexpr MessageKind unnamed{0, "", 0};

const MessageKind& KindOf(UINT message) {
    const auto found = std::ranges::lower_bound(kinds, message, {}, &MessageKind::message);
    return found != std::end(kinds) && found->message == message ? *found : unnamed;
}

LRESULT Send(std::string_view operation, Window* window, UINT message, WPARAM wParam, LPARAM lParam) {
    const MessageKind& kind = KindOf(message);
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
    return !sim::Operation(sim::Reach::Write, __func__, [=] {
        return std::string(sim::KindOf(message).name) + ' ' + sim::Quoted(sim::MessageText(lParam));
    });
}
