// The library's resources as the system finds them: by language, by number.
#include "simulated/catalogue.h"

#include <algorithm>
#include <vector>

#include "simulated/window.h"

struct SimulatedInstance {};

namespace sim {
namespace {

constexpr LANGID english_united_states = 0x0409;
constexpr LANGID primary_mask = 0x03FF;

std::vector<const Catalogue*>& Entered() {
    static std::vector<const Catalogue*> catalogues;
    return catalogues;
}

const Catalogue* Exactly(LANGID language) {
    const auto found = std::ranges::find(Entered(), language, &Catalogue::language);
    return found == Entered().end() ? nullptr : *found;
}

const WCHAR* FindString(HINSTANCE instance, UINT id) {
    const auto& missing = Current().missing_strings;
    if (instance != LibraryInstance() || std::ranges::find(missing, id) != missing.end()) {
        return nullptr;
    }
    const auto strings = CatalogueFor(Current().language).strings;
    const auto found = std::ranges::find(strings, id, &CatalogueString::id);
    return found == strings.end() ? nullptr : found->text;
}

} // namespace

Table<const Catalogue*> Catalogues() {
    return Entered();
}

bool EnterCatalogue(const Catalogue& catalogue) {
    Entered().push_back(&catalogue);
    return true;
}

const Catalogue& CatalogueFor(LANGID language) {
    for (const Catalogue* found : {Exactly(language), Exactly(language & primary_mask)}) {
        if (found != nullptr) {
            return *found;
        }
    }
    return *Exactly(english_united_states);
}

HINSTANCE LibraryInstance() {
    static SimulatedInstance library;
    return &library;
}

const DialogTemplate* FindDialog(HINSTANCE instance, LPCWSTR name) {
    if (instance != LibraryInstance()) {
        return nullptr;
    }
    const auto dialogs = CatalogueFor(Current().language).dialogs;
    const auto found = std::ranges::find_if(
        dialogs, [=](const DialogTemplate& dialog) { return MAKEINTRESOURCEW(dialog.id) == name; });
    return found == dialogs.end() ? nullptr : &*found;
}

} // namespace sim

int LoadStringW(HINSTANCE instance, UINT id, LPWSTR buffer, int capacity) {
    if (sim::Operation(sim::Reach::Screen, __func__, [=] { return std::to_string(id); }) || capacity <= 0) {
        return 0;
    }
    const WCHAR* text = sim::FindString(instance, id);
    return text == nullptr ? 0 : sim::CopyOut(text, buffer, static_cast<std::size_t>(capacity));
}
