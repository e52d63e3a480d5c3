#include "host/line/console.h"

#include <fstream>

namespace host {
namespace {

class StreamLines : public LineSource {
public:
    explicit StreamLines(std::istream& stream) : stream_(stream) {}

    std::optional<std::string> Next(const std::string&) override {
        std::string line;
        if (!std::getline(stream_, line)) {
            return {};
        }
        return line;
    }

private:
    std::istream& stream_;
};

struct OwnFile {
    std::ifstream file;
};
class FileLines : private OwnFile, public StreamLines {
public:
    explicit FileLines(std::ifstream&& opened) : OwnFile{std::move(opened)}, StreamLines(file) {}
};

} // namespace

std::unique_ptr<LineSource> LinesOf(std::istream& stream) {
    return std::make_unique<StreamLines>(stream);
}

std::unique_ptr<LineSource> LinesOfFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return file ? std::make_unique<FileLines>(std::move(file)) : nullptr;
}

} // namespace host
