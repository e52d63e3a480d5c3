// The map of the COM numbers: arrows go over it, and below stands what is known of the number they are at.
#pragma once

#include "host/diagnosis/diagnosis.h"
#include "host/full_screen/view.h"
#include "host/session/session.h"

namespace host {

class NumbersView : public View {
public:
    explicit NumbersView(World& world);

    std::string Title() const override;
    void Renew() override;
    void Draw(Canvas& canvas, const Cells& within) override;
    Outcome Take(const Event& event, const Cells& within) override;
    std::vector<Hint> Hints(const Cells&) const override;
    // Goes to the next number with such a text in what is known of it.
    bool Find(const std::string& text) override;

private:
    std::string Command() const;

    World& world_;
    Records records_;
    std::vector<Finding> findings_;
    int number_ = 1;
    int across_ = 1;    // columns of the map
    int first_row_ = 0; // of it, in sight
    int rows_ = 1;
};

} // namespace host
