// The catalogue of one language; LANGUAGE_FILE is the name of its file under resources/languages/. Compiled
// once per language.
#include "resources/resource_ids.h"
#include "simulated/catalogue.h"

// clang-format off
#define HEADER_OF(file) HEADER_TEXT(resources/languages/file.h)
// clang-format on
#define HEADER_TEXT(path) #path
#include HEADER_OF(LANGUAGE_FILE)

namespace sim {
namespace {

#define WIDE(text) u"" text

// The controls of each dialog.
#define DIALOG(id, name, style, ...) constexpr ControlTemplate controls_of_##id[] = {
#define DIALOG_OF_WEIGHT(id, name, style, weight, ...) constexpr ControlTemplate controls_of_##id[] = {
#define ITEM(id, text, class_name, style, ...)                                                               \
    {id, WIDE(text), WIDE(class_name), static_cast<DWORD>(WS_CHILD | WS_VISIBLE | (style)), __VA_ARGS__},
// clang-format off
#define DIALOG_END };
// clang-format on
#include "resources/layout.inc"
#undef DIALOG
#undef DIALOG_OF_WEIGHT
#undef ITEM
#undef DIALOG_END

constexpr DialogTemplate Dialog(int id, const WCHAR* title, DWORD style, int weight,
                                Table<ControlTemplate> controls, int, int, int cx, int cy) {
    return {id, title, style, weight, cx, cy, controls};
}

// The dialogs themselves.
#define DIALOG_OF_WEIGHT(id, name, style, weight, ...)                                                       \
    Dialog(id, WIDE(name), static_cast<DWORD>(style), weight, controls_of_##id,                              \
           RECT_OR(name##_RECT, __VA_ARGS__)),
#define DIALOG(id, name, style, ...)                                                                         \
    Dialog(id, WIDE(name), static_cast<DWORD>(style), 0, controls_of_##id, RECT_OR(name##_RECT, __VA_ARGS__)),
#define ITEM(...)
#define DIALOG_END
constexpr DialogTemplate dialogs[] = {
#include "resources/layout.inc"
};

#define STRING(id, name, limit) {id, WIDE(name), limit},
constexpr CatalogueString strings[] = {
#include "resources/strings.inc"
};

constexpr Catalogue catalogue{LANGUAGE_SUB << 10 | LANGUAGE_PRIMARY, dialogs, strings};
[[maybe_unused]] const bool entered = EnterCatalogue(catalogue);

} // namespace
} // namespace sim
