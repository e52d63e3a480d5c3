// The standard input at a terminal, through libedit: prompt, history, completion with the Tab key.
#include <algorithm>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <iostream>

#include <histedit.h>
#include <langinfo.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "host/languages.h"
#include "host/line/console.h"
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
        el_wset(edit_, EL_ADDFN, L"complete", L"Completes the word", &Terminal::Complete);
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
    Charset Letters() const override { return HasUnicode() ? Charset::Utf8 : Charset::Ascii; }
    void CompleteBy(const Continuations& continuations) override { continuations_ = continuations; }

private:
    static Terminal& Of(EditLine* edit) {
        void* data = nullptr;
        el_get(edit, EL_CLIENTDATA, &data);
        return *static_cast<Terminal*>(data);
    }

    static char* PromptOf(EditLine* edit) { return Of(edit).prompt_.data(); }

    // Extends the word at the end of the line as far as all possible continuations agree. If it can't be
    // extended, lists the continuations.
    static unsigned char Complete(EditLine* edit, int) {
        const LineInfo* const info = el_line(edit);
        std::vector<std::string> words;
        const std::string_view line(info->buffer, static_cast<std::size_t>(info->cursor - info->buffer));
        const bool in_quotes = !SplitWords(line, words);
        std::string begun;
        if (!line.empty() && !words.empty() && (in_quotes || line.back() != ' ')) {
            begun = words.back();
            words.pop_back();
        }
        std::vector<std::string> matching;
        for (std::string& word : Of(edit).continuations_(words)) {
            if (Folded(word).starts_with(Folded(begun))) {
                matching.push_back(std::move(word));
            }
        }
        if (matching.empty()) {
            return CC_REFRESH_BEEP;
        }
        std::string common = matching.front();
        for (const std::string& word : matching) {
            common.resize(static_cast<std::size_t>(
                std::mismatch(common.begin(), common.end(), word.begin(), word.end()).first -
                common.begin()));
        }
        if (common.size() <= begun.size() && matching.size() > 1) {
            std::cout << '\n';
            for (const std::string& word : matching) {
                std::cout << "  " << word << '\n';
            }
            std::cout.flush();
            return CC_REDISPLAY;
        }
        const bool whole = matching.size() == 1;
        const bool quotes = in_quotes || common.find(' ') != std::string::npos;
        std::string typed = (quotes ? "\"" : "") + common + (whole ? quotes ? "\" " : " " : "");
        el_deletestr(edit, static_cast<int>(Columns(begun)) + (in_quotes ? 1 : 0));
        el_insertstr(edit, typed.c_str());
        return CC_REFRESH;
    }

    EditLine* edit_;
    History* history_;
    std::string prompt_;
    Continuations continuations_ = [](const auto&) { return std::vector<std::string>{}; };
};

} // namespace

std::unique_ptr<LineSource> OpenConsole() {
    if (isatty(STDIN_FILENO) && isatty(STDOUT_FILENO)) {
        return std::make_unique<Terminal>();
    }
    return LinesOf(std::cin);
}

void OpenOutput() {}

} // namespace host
