#include "host/whole_file.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <type_traits>

#include "host/text.h"

namespace host {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& name) {
    if constexpr (std::is_same_v<fs::path::value_type, char>) {
        return name;
    } else {
        return FromUtf8(name);
    }
}

std::string FileName(const fs::path& path) {
    const auto& name = path.native();
    if constexpr (std::is_same_v<fs::path::value_type, char>) {
        return {name.begin(), name.end()};
    } else {
        return ToUtf8({reinterpret_cast<const WCHAR*>(name.data()), name.size()});
    }
}

bool WriteWhole(const std::string& path, const std::function<void(std::ostream&)>& write,
                std::string& error) {
    std::error_code failure;
    fs::path place = PathOf(path);
    const fs::file_status status = fs::status(place, failure);
    // A pipe or a terminal is written to and not replaced.
    const bool replaces = !fs::exists(status) || fs::is_regular_file(status);
    if (const fs::path linked = fs::canonical(place, failure); replaces && !failure) {
        place = linked; // a link stays a link
    }
    fs::path written = place;
    if (replaces) {
        written += ".part";
    }
    errno = 0;
    std::ofstream out(written, std::ios::binary | std::ios::trunc);
    write(out);
    out.close();
    failure.clear();
    if (!out) {
        failure.assign(errno != 0 ? errno : EIO, std::generic_category());
    } else if (replaces) {
        if (fs::exists(status)) {
            fs::permissions(written, status.permissions(), failure);
        }
        fs::rename(written, place, failure);
    }
    if (!failure) {
        return true;
    }
    error = "can't write " + path + ": " + failure.message();
    if (replaces) {
        fs::remove(written, failure);
    }
    return false;
}

} // namespace host
