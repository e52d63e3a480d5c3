// Takes a picture of each of the four dialogs from the real windows on the screen: opens the sheets of the
// first board and of the first port, and from each of them its "Advanced..." dialog.
//
//     kvrpictures FOLDER LANGUAGE...
//
// writes FOLDER/103-1031.bmp and so on, one file per dialog and language.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <set>
#include <string>

#include "resources/resource_ids.h"
#include "tests/windows/programs/sheets.h"

namespace {

std::string folder;
LANGID language;
int taken = 0;

// Lets the windows paint themselves.
void Settle() {
    for (int i = 0; i < 5; ++i) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message != WM_TIMER) {
                DispatchMessageW(&message);
            }
        }
        Sleep(10);
    }
}

void Save(HWND window, int dialog) {
    RECT place;
    SetWindowPos(window, HWND_TOPMOST, 20, 20, 0, 0, SWP_NOSIZE);
    SetForegroundWindow(window);
    SendMessageW(window, WM_NCACTIVATE, TRUE, 0);
    Settle();
    GetWindowRect(window, &place);
    const LONG width = place.right - place.left, height = place.bottom - place.top;
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = 24;
    const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
    void* pixels = nullptr;
    const HBITMAP bitmap =
        CreateDIBSection(screen, reinterpret_cast<BITMAPINFO*>(&header), DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    GdiFlush();
    const DWORD bytes = static_cast<DWORD>((width * 3 + 3) / 4 * 4 * height);
    BITMAPFILEHEADER start{};
    start.bfType = 0x4D42;
    start.bfOffBits = sizeof start + sizeof header;
    start.bfSize = start.bfOffBits + bytes;
    std::ofstream file(folder + '/' + std::to_string(dialog) + '-' + std::to_string(language) + ".bmp",
                       std::ios::binary);
    file.write(reinterpret_cast<const char*>(&start), sizeof start);
    file.write(reinterpret_cast<const char*>(&header), sizeof header);
    file.write(static_cast<const char*>(pixels), static_cast<std::streamsize>(bytes));
    taken += file.good();
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

// The page of a sheet; null if the window is not a sheet.
HWND PageOf(HWND window) {
    return FindWindowExW(window, nullptr, TEXT("#32770"), nullptr);
}

void Press(HWND window, int button) {
    SendMessageW(GetDlgItem(window, button), BM_CLICK, 0, 0);
}

void TakePictures(host::World& world, const host::DeviceRecord& device, int page_dialog,
                  int advanced_dialog) {
    std::set<HWND> seen;
    world.RunSheet(device.id, [&](HWND front) {
        const HWND page = PageOf(front);
        if (seen.insert(front).second) {
            Save(front, page ? page_dialog : advanced_dialog);
            if (page) {
                Press(page, IDC_ADVANCED);
                return;
            }
        }
        Press(front, IDCANCEL);
    });
}

} // namespace

int main(int argc, char** argv) {
    folder = argc > 1 ? argv[1] : ".";
    for (int i = 2; i < argc; ++i) {
        language = static_cast<LANGID>(std::atoi(argv[i]));
        std::string error;
        const std::unique_ptr<host::World> world = host::OpenWorld({}, language, error);
        if (!world) {
            std::printf("%s\n", error.c_str());
            return 2;
        }
        for (const auto& [role, page, advanced] : host::role_sheets) {
            if (const std::optional<host::DeviceRecord> device = host::FirstDevice(*world, role)) {
                TakePictures(*world, *device, page, advanced);
            }
        }
    }
    std::printf("%d pictures\n", taken);
    return taken == 4 * (argc - 2) ? 0 : 1;
}
