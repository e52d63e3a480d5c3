// The standard input at a terminal, through libedit: prompt, history, completion with the Tab key.
#include <algorithm>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include <histedit.h>
#include <langinfo.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "host/languages.h"
#include "host/line/line_source.h"
#include "host/text.h"

namespace host {
namespace {

volatile std::sig_atomic_t interrupted = 0;

class Terminal : public LineSource {
public:
    Terminal() {
        // A locale without a character set of its own, such as C, must not drop letters from a name.
        std::setlocale(LC_CTYPE, "");
        if (std::string_view{nl_langinfo(CODESET)} != "UTF-8") {
            std::setlocale(LC_CTYPE, "C.UTF-8");
        }
        edit_ = el_init("kvrhost", stdin, stdout, stderr);
        history_ = history_init();
        HistEvent event;
        history(history_, &event, H_SETSIZE, 1000);
        history(history_, &event, H_SETUNIQUE, 1);
        el_set(edit_, EL_CLIENTDATA, this);
        el_set(edit_, EL_PROMPT, &Terminal::PromptOf);
        el_set(edit_, EL_EDITOR, "emacs");
        el_set(edit_, EL_HIST, history, history_);
        el_wset(edit_, EL_ADDFN, L"complete", L"Completes the word", &Terminal::CompleteLine);
        el_set(edit_, EL_BIND, "^I", "complete", nullptr);
        el_set(edit_, EL_SIGNAL, 1);
        // Ctrl-C discards what has been typed and does nothing else; the editor passes the signal on and
        // stops reading.
        struct sigaction interrupt {};
        interrupt.sa_handler = [](int) { interrupted = 1; };
        sigaction(SIGINT, &interrupt, nullptr);
    }
    ~Terminal() override {
        el_end(edit_);
        history_end(history_);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    std::optional<std::string> Next(const std::string& prompt) override {
        std::cout.flush();
        prompt_ = prompt;
        interrupted = 0;
        int count = 0;
        const char* const typed = el_gets(edit_, &count);
        if (interrupted) {
            el_reset(edit_);
            std::cout << "^C\n";
            return std::string{};
        }
        if (typed == nullptr || count <= 0) {
            std::cout << '\n';
            return {};
        }
        std::string line(typed, static_cast<std::size_t>(count));
        if (line.find_first_not_of(" \n") != std::string::npos) {
            HistEvent event;
            history(history_, &event, H_ENTER, line.c_str());
        }
        line.resize(line.find_last_not_of('\n') + 1);
        return line;
    }
    bool IsPerson() const override { return true; }
    int Width() const override {
        winsize size{};
        return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
    }
    bool IsPlain() const override {
        const char* const terminal = std::getenv("TERM");
        return terminal != nullptr && std::strcmp(terminal, "dumb") == 0;
    }
    Charset Letters() const override { return HasUnicode() ? Charset::Utf8 : Charset::Ascii; }
    void CompleteBy(const Complete& complete) override { complete_ = complete; }

private:
    static Terminal& Of(EditLine* edit) {
        void* data = nullptr;
        el_get(edit, EL_CLIENTDATA, &data);
        return *static_cast<Terminal*>(data);
    }

    static char* PromptOf(EditLine* edit) { return Of(edit).prompt_.data(); }

    // Extends the line before the cursor, or lists how it may go on.
    static unsigned char CompleteLine(EditLine* edit, int) {
        const LineInfo* const info = el_line(edit);
        const std::string_view line(info->buffer, static_cast<std::size_t>(info->cursor - info->buffer));
        const Completion completion = Of(edit).complete_(line);
        if (!completion.candidates.empty()) {
            std::cout << '\n';
            for (const std::string& word : completion.candidates) {
                std::cout << "  " << Escaped(word) << '\n';
            }
            std::cout.flush();
            return CC_REDISPLAY;
        }
        if (completion.line == line) {
            return CC_REFRESH_BEEP;
        }
        el_deletestr(edit, static_cast<int>(
                               std::ranges::count_if(line, [](char byte) { return (byte & 0xC0) != 0x80; })));
        el_insertstr(edit, completion.line.c_str());
        return CC_REFRESH;
    }

    EditLine* edit_;
    History* history_;
    std::string prompt_;
    LineSource::Complete complete_ = [](std::string_view line) { return Completion{std::string(line), {}}; };
};

} // namespace

std::unique_ptr<LineSource> OpenConsole() {
    if (isatty(STDIN_FILENO) && isatty(STDOUT_FILENO)) {
        return std::make_unique<Terminal>();
    }
    if (isatty(STDIN_FILENO)) {
        std::cerr
            << "kvrhost: the output goes elsewhere; commands are read from here, one per line: help lists "
               "them, Ctrl-D ends\n";
    }
    return LinesOf(std::cin);
}

void OpenOutput() {}

} // namespace host
