#include "check/windows/run_time_texts.h"

#include <algorithm>

#include "resources/resource_ids.h"

HMODULE library;

const void* Resource(LPCWSTR type, WORD name, LANGID language) {
    const HRSRC found = FindResourceExW(library, type, MAKEINTRESOURCEW(name), language);
    return found != nullptr ? LockResource(LoadResource(library, found)) : nullptr;
}

Text String(LANGID language, UINT id) {
    const auto* at = static_cast<const WCHAR*>(Resource(RT_STRING, static_cast<WORD>(id / 16 + 1), language));
    for (UINT i = 0; at && i < id % 16; ++i) {
        at += *at + 1;
    }
    return at != nullptr ? Text(at + 1, *at) : Text();
}

Text Filled(Text format, const Text& value) {
    const std::size_t at = format.find(TEXT('%'));
    return at == Text::npos ? format : format.replace(at, 2, value);
}

// The items of a list string, whose first character separates them.
static std::vector<Text> ListItems(const Text& list) {
    std::vector<Text> items;
    for (std::size_t at = 1, end; at < list.size(); at = end + 1) {
        end = std::min(list.find(list[0], at), list.size());
        items.push_back(list.substr(at, end - at));
    }
    return items;
}

std::vector<Text> ComboItems(LANGID language, WORD dialog, int id) {
    if (dialog == IDD_PORT_SETTINGS) {
        switch (id) {
        case IDC_PARITY:
            return ListItems(String(language, IDS_PARITY_LIST));
        case IDC_STOP_BITS:
            return ListItems(String(language, IDS_STOP_BITS_LIST));
        case IDC_FLOW_CONTROL:
            return ListItems(String(language, IDS_FLOW_CONTROL_LIST));
        default:
            return {TEXT("1500000")};
        }
    }
    switch (id) {
    case IDC_PORT_NUMBER:
        return {TEXT("COM256") + String(language, IDS_IN_USE_SUFFIX)};
    case IDC_INTERFACE_SELECT:
        return {TEXT("Auto RS-422/485")};
    default:
        return {TEXT("5")};
    }
}

Text RunTimeText(LANGID language, WORD dialog, int id, const Text& text) {
    const bool board = dialog == IDD_PORT_CONTROL;
    switch (id) {
    case IDC_RECEIVE_LOW:
    case IDC_TRANSMIT_LOW:
        return Filled(board ? String(language, IDS_LOW) : text, TEXT("1"));
    case IDC_RECEIVE_HIGH:
    case IDC_TRANSMIT_HIGH:
        return Filled(board ? String(language, IDS_HIGH) : text, TEXT("128"));
    default:
        return Filled(text, TEXT("128"));
    }
}
