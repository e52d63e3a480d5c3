// Where the commands come from: a person at a terminal or lines of text.
#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

// The words that may follow those given, in a line that is not finished.
using Continuations = std::function<std::vector<std::string>(const std::vector<std::string>& words)>;

class LineSource {
public:
    virtual ~LineSource() = default;

    // The next line without its end, any bytes; nothing at the end of the input.
    virtual std::optional<std::string> Next(const std::string& prompt) = 0;

    // Whether a person types the lines: they are then on the screen already.
    virtual bool IsPerson() const { return false; }

    // How wide the screen is that the person sees; 0 where there is none, or nobody knows.
    virtual int Width() const { return 0; }

    virtual void CompleteBy(const Continuations&) {}
};

// Lines of a stream, which must outlive the source. The prompt is not shown.
std::unique_ptr<LineSource> LinesOf(std::istream& stream);

// Those of a file; null if it can't be opened.
std::unique_ptr<LineSource> LinesOfFile(const std::string& path);

// Makes the standard output take UTF-8, its lines ended by LF alone. Called before anything is written.
void OpenOutput();

// The standard input: at a terminal with prompt, history and completion, otherwise plainly.
std::unique_ptr<LineSource> OpenConsole();

} // namespace host
