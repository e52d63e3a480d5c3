// Where lines of text come from: a person at a terminal, or a stream.
#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <string>

#include "host/screen/canvas.h"
#include "host/session/completion.h"

namespace host {

class LineSource {
public:
    virtual ~LineSource() = default;

    // The next line without its line end, any bytes; nothing at the end of the input.
    virtual std::optional<std::string> Next(const std::string& prompt) = 0;

    // Whether a person types the lines. They are then already on the screen.
    virtual bool IsPerson() const { return false; }

    // How wide the person's screen is; 0 if there is none or its width is not known.
    virtual int Width() const { return 0; }

    // Whether that screen is known to place nothing.
    virtual bool IsPlain() const { return false; }
    // What the person's screen can show of frames.
    virtual Charset Letters() const { return Charset::Utf8; }

    using Complete = std::function<Completion(std::string_view line)>;
    virtual void CompleteBy(const Complete&) {}
};

// The lines of a stream, which must outlive the source. The prompt is not shown.
std::unique_ptr<LineSource> LinesOf(std::istream& stream);

// Makes the standard output write UTF-8, with lines that end in LF alone. Called before anything is written.
void OpenOutput();

// The standard input: with prompt, history and completion at a terminal, otherwise plain.
std::unique_ptr<LineSource> OpenConsole();

} // namespace host
