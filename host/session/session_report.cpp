#include "host/session/session_report.h"

#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "host/diagnosis/html_report.h"
#include "host/machine_file/differences.h"
#include "host/session/session.h"
#include "host/sha256.h"
#include "host/text.h"
#include "host/whole_file.h"

namespace host {
namespace {

// When a file was last written, in UTC; empty if that can't be said.
std::string DateOf(const std::string& file) {
    using namespace std::chrono;
    std::error_code failure;
    const auto written = std::filesystem::last_write_time(PathOf(file), failure);
    if (failure) {
        return {};
    }
    const std::time_t time =
        system_clock::to_time_t(time_point_cast<system_clock::duration>(file_clock::to_sys(written)));
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M UTC", std::gmtime(&time));
    return text;
}

} // namespace

bool WriteReport(Session& session, const std::string& file, const std::string& changes_by,
                 std::string& error) {
    if (session.IsReadFrom(file)) {
        error = file + " is the export that the machine was read from";
        return false;
    }
    const Records now = session.world().Describe();
    ReportSource source{
        session.world().Name(), {}, {}, DifferenceLines(AsRead(session.original(), now), now), changes_by};
    std::ifstream bytes(PathOf(source.name), std::ios::binary);
    if (session.world().File() != nullptr && bytes) {
        source.date = DateOf(source.name);
        source.sha256 = Sha256(bytes);
    }
    const std::string html = HtmlReport(session.original(), Diagnose(session.original()), source);
    return WriteWhole(
        file, [&](std::ostream& out) { out << html; }, error);
}

} // namespace host
