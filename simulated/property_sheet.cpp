// Property sheets: the pages' handles, their callbacks, and the sheet that runs them.
#include <algorithm>
#include <cstring>

#include "simulated/stage.h"
#include "simulated/window.h"

namespace sim {
namespace {

// A page from its creation to its release: the sheet's own copy of what describes it.
struct Page {
    PropertyPageDescription description{};

    UINT Call(UINT message) {
        PROPSHEETPAGEW& page = description.page;
        const LogicAtWork at_work;
        return page.pfnCallback(nullptr, message, &page);
    }
};

// The pages that no sheet has taken over yet.
std::map<HPROPSHEETPAGE, std::unique_ptr<Page>>& LoosePages() {
    static std::map<HPROPSHEETPAGE, std::unique_ptr<Page>> pages;
    return pages;
}

std::unique_ptr<Page> TakePage(HPROPSHEETPAGE handle, std::string_view operation) {
    auto node = LoosePages().extract(handle);
    if (node.empty()) {
        MisuseOfHandle(operation, "page", handle);
        return nullptr;
    }
    return std::move(node.mapped());
}

void Release(Page& page) {
    page.Call(PSPCB_RELEASE);
    Closed("page");
}

// Dialog units: the pages within the sheet, the buttons below them.
constexpr int margin = 4;
constexpr int tab_height = 18;
constexpr int button_width = 50;
constexpr int button_height = 14;
constexpr int tab_number = 0x3020;

struct Sheet : Dialog {
    std::vector<Dialog*> pages; // the first one is in front
    bool is_accepted = false;

    Sheet(const Text& title, int page_cx, int page_cy) {
        const int cx = page_cx + 2 * margin;
        const int row = tab_height + page_cy + margin;
        constexpr DWORD button = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        const auto place_of = [=](int from_right) { return cx - from_right * (button_width + margin); };
        const ControlTemplate buttons[] = {
            {IDOK, u"OK", u"BUTTON", button | WS_GROUP | BS_DEFPUSHBUTTON, place_of(3), row, button_width,
             button_height},
            {IDCANCEL, u"Cancel", u"BUTTON", button, place_of(2), row, button_width, button_height},
            {ID_APPLY_NOW, u"&Apply", u"BUTTON", button | WS_DISABLED, place_of(1), row, button_width,
             button_height},
            {tab_number, u"", u"SysTabControl32", button | WS_GROUP, margin, margin, page_cx,
             tab_height - margin},
        };
        OpenOver(nullptr);
        Furnish({0, title.c_str(), static_cast<DWORD>(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME), 0,
                 cx, row + button_height + margin, buttons});
    }

    void Add(const DialogTemplate& form, PROPSHEETPAGEW& description) {
        auto page = std::make_unique<Dialog>();
        page->procedure = description.pfnDlgProc;
        page->parent = this;
        page->place.left = place.left + PixelsAcross(margin);
        page->place.top = place.top + PixelsDown(tab_height);
        page->Furnish(form);
        constexpr DWORD of_top_level = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE;
        page->style = (page->style & ~of_top_level) | WS_CHILD;
        Dialog& added = *page;
        children.insert(children.begin() + std::ssize(pages), std::move(page));
        pages.push_back(&added);
        added.Initialise(reinterpret_cast<LPARAM>(&description));
    }

    LRESULT Notify(Dialog& page, UINT code, bool is_closing) {
        PSHNOTIFY notice{{handle, 0, code}, is_closing};
        return page.Answer(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
    }

    void Show() {
        pages.front()->style |= WS_VISIBLE;
        Notify(*pages.front(), PSN_SETACTIVE, false);
    }

    // Whether all pages have applied what they show.
    bool Apply(bool is_closing) {
        return Notify(*pages.front(), PSN_KILLACTIVE, false) == FALSE &&
               std::ranges::all_of(pages, [&](Dialog* page) {
                   return Notify(*page, PSN_APPLY, is_closing) == PSNRET_NOERROR;
               });
    }

    void Press(int button) {
        if (button == IDOK && Apply(true)) {
            is_accepted = true;
            End(IDOK);
        } else if (button == IDCANCEL) {
            std::ranges::for_each(pages, [&](Dialog* page) { Notify(*page, PSN_RESET, false); });
            End(IDCANCEL);
        } else if (button == ID_APPLY_NOW && Apply(false)) {
            Child(ID_APPLY_NOW)->Enable(false);
        }
        if (!ended && (button == IDOK || button == ID_APPLY_NOW)) {
            Notify(*pages.front(), PSN_SETACTIVE, false);
        }
    }

    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (procedure != nullptr) { // set by whoever watches the sheet
            return Dialog::Answer(message, wParam, lParam);
        }
        switch (message) {
        case PSM_CHANGED:
            Child(ID_APPLY_NOW)->Enable(true);
            return 0;
        case PSM_PRESSBUTTON:
            Press(wParam == PSBTN_OK         ? IDOK
                  : wParam == PSBTN_CANCEL   ? IDCANCEL
                  : wParam == PSBTN_APPLYNOW ? ID_APPLY_NOW
                                             : 0);
            return 0;
        case WM_COMMAND:
            Press(LOWORD(wParam));
            return 0;
        case WM_CLOSE:
            Press(IDCANCEL);
            return 0;
        default:
            return Dialog::Answer(message, wParam, lParam);
        }
    }
};

// Runs the sheet with those pages that can be created.
bool RunPages(const Text& title, std::vector<std::unique_ptr<Page>>& taken) {
    std::vector<std::pair<const DialogTemplate*, PROPSHEETPAGEW*>> parts;
    int cx = 0;
    int cy = 0;
    for (const auto& page : taken) {
        PROPSHEETPAGEW& description = page->description.page;
        const DialogTemplate* form = FindDialog(description.hInstance, description.pszTemplate);
        if (form != nullptr && page->Call(PSPCB_CREATE) != FALSE) {
            parts.emplace_back(form, &description);
            cx = std::max(cx, form->cx);
            cy = std::max(cy, form->cy);
        }
    }
    if (parts.empty()) {
        return false;
    }
    Sheet sheet(title, cx, cy);
    for (const auto& [form, description] : parts) {
        sheet.Add(*form, *description);
    }
    sheet.Show();
    sheet.Run(IDCANCEL);
    return sheet.is_accepted;
}

} // namespace

bool RunSheet(std::u16string_view title, const std::vector<HPROPSHEETPAGE>& handles) {
    std::vector<std::unique_ptr<Page>> taken;
    for (const HPROPSHEETPAGE handle : handles) {
        if (auto page = TakePage(handle, __func__)) {
            taken.push_back(std::move(page));
        }
    }
    const bool is_accepted = RunPages(Text(title), taken);
    for (const auto& page : taken) {
        Release(*page);
    }
    return is_accepted;
}

} // namespace sim

HPROPSHEETPAGE CreatePropertySheetPageW(LPCPROPSHEETPAGEW description) {
    const auto number = [=] { return std::to_string(reinterpret_cast<ULONG_PTR>(description->pszTemplate)); };
    if (sim::Operation(sim::Reach::Screen, __func__, number)) {
        return nullptr;
    }
    if (description->dwSize != sizeof(PROPSHEETPAGEW) &&
        description->dwSize != sizeof(PropertyPageDescription)) {
        sim::Misuse("CreatePropertySheetPageW: a description of " + std::to_string(description->dwSize) +
                    " bytes");
        return nullptr;
    }
    if (description->dwFlags != PSP_USECALLBACK) {
        sim::Misuse("CreatePropertySheetPageW: flags other than that of the callback");
        return nullptr;
    }
    auto page = std::make_unique<sim::Page>();
    std::memcpy(&page->description, description, description->dwSize);
    page->Call(PSPCB_ADDREF);
    const HPROPSHEETPAGE handle = reinterpret_cast<HPROPSHEETPAGE>(sim::NextHandle());
    sim::LoosePages().emplace(handle, std::move(page));
    sim::Opened("page");
    return handle;
}

BOOL DestroyPropertySheetPage(HPROPSHEETPAGE handle) {
    const bool fails = sim::Operation(sim::Reach::Screen, __func__);
    const auto page = sim::TakePage(handle, __func__);
    if (page == nullptr) {
        return FALSE;
    }
    sim::Release(*page);
    return !fails;
}
