#include "host/line/line_source.h"

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

} // namespace

std::unique_ptr<LineSource> LinesOf(std::istream& stream) {
    return std::make_unique<StreamLines>(stream);
}

} // namespace host
