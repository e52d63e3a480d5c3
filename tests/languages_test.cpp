// The dialogs and strings of all languages against those of English (United States).
#include <algorithm>
#include <map>
#include <set>

#include "host/languages.h"
#include "simulated/catalogue.h"
#include "tests/sheets.h"

namespace {

constexpr LANGID languages[] = {29,   1025, 1028, 1029, 1030, 1031, 1032, 1033, 1035, 1036,
                                1037, 1038, 1040, 1041, 1042, 1043, 1044, 1045, 1046, 1049,
                                1051, 1054, 1055, 2052, 2057, 2068, 2070, 3082, 3084, 4105};
constexpr int combo_height = 14; // closed

const sim::Catalogue& English() {
    return sim::CatalogueFor(1033);
}

// "%d%s": the placeholders that the text's formatter fills.
sim::Text Placeholders(std::u16string_view text) {
    sim::Text found;
    for (std::size_t at = text.find(u'%'); at != text.npos; at = text.find(u'%', at + 2)) {
        found += text.substr(at, 2);
    }
    return found;
}

bool IsBlank(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\u00A0' || unit == u'\u3000';
}

// The rules for each text compared with the English one.
void ExpectTextLike(std::u16string_view text, std::u16string_view english) {
    EXPECT_EQ(text.empty(), english.empty());
    EXPECT_EQ(Placeholders(text), Placeholders(english));
    EXPECT_EQ(std::ranges::count(text, u'\r'), std::ranges::count(english, u'\r'));
    if (!text.empty()) {
        EXPECT_EQ(IsBlank(text.front()), IsBlank(english.front()));
        EXPECT_EQ(IsBlank(text.back()), IsBlank(english.back()));
    }
}

struct Box {
    int left, top, right, bottom;
    bool Meets(const Box& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool Holds(const Box& other) const {
        return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
    }
};

Box BoxOf(const sim::ControlTemplate& control) {
    const bool is_combo = control.class_name == std::u16string_view(u"COMBOBOX");
    return {control.x, control.y, control.x + control.cx, control.y + (is_combo ? combo_height : control.cy)};
}

bool IsGroup(const sim::ControlTemplate& control) {
    return control.class_name == std::u16string_view(u"BUTTON") &&
           (control.style & BS_TYPEMASK) == BS_GROUPBOX;
}

// All controls are in the dialog, none overlaps another, and each is either in a group or beside it.
void ExpectApart(const sim::DialogTemplate& dialog) {
    const Box whole = {0, 0, dialog.cx, dialog.cy};
    for (const sim::ControlTemplate& one : dialog.controls) {
        EXPECT_TRUE(whole.Holds(BoxOf(one))) << one.id << ' ' << sim::ToUtf8(one.text);
        for (const sim::ControlTemplate* other = dialog.controls.begin(); other != &one; ++other) {
            const Box first = BoxOf(*other);
            const Box second = BoxOf(one);
            const bool one_holds_the_other =
                (IsGroup(*other) && first.Holds(second)) || (IsGroup(one) && second.Holds(first));
            EXPECT_TRUE(!first.Meets(second) || one_holds_the_other)
                << other->id << ' ' << sim::ToUtf8(other->text) << " over " << one.id << ' '
                << sim::ToUtf8(one.text);
        }
    }
}

// The hot keys of the sheet's own Apply, on Windows and on Wine. The English pages use the letter too:
// their texts are the ones that users know.
const std::map<LANGID, std::u16string_view> sheet_letters = {
    {29, u"V"},    {1025, u"ت"}, {1028, u"A"}, {1029, u"P"}, {1030, u"A"},  {1031, u"AB"},
    {1032, u"ΕΦ"}, {1033, u""},  {1035, u"K"}, {1036, u"A"}, {1037, u"חה"}, {1038, u"A"},
    {1040, u"A"},  {1041, u"A"}, {1042, u"A"}, {1043, u"T"}, {1044, u"B"},  {1045, u"AZ"},
    {1046, u"A"},  {1049, u"М"}, {1051, u"P"}, {1054, u"น"}, {1055, u"U"},  {2052, u"A"},
    {2057, u"A"},  {2068, u"B"}, {2070, u"A"}, {3082, u"A"}, {3084, u"A"},  {4105, u"A"}};

// At most one hot key per control and no letter twice in a dialog. A page does not use those of the sheet
// around it. In East Asian texts the hot key is a Latin letter in parentheses.
void ExpectMnemonics(const sim::DialogTemplate& dialog, const sim::DialogTemplate& english, LANGID language) {
    const bool east_asian = language == 1028 || language == 1041 || language == 1042 || language == 2052;
    std::set<char16_t> taken;
    if (dialog.id == IDD_PORT_SETTINGS || dialog.id == IDD_PORT_CONTROL) {
        taken.insert(sheet_letters.at(language).begin(), sheet_letters.at(language).end());
    }
    for (std::size_t i = 0; i < dialog.controls.size(); ++i) {
        const std::u16string_view text = dialog.controls[i].text;
        const std::size_t at = text.find(u'&');
        SCOPED_TRACE(sim::ToUtf8(text));
        EXPECT_EQ(at == text.npos, std::u16string_view(english.controls[i].text).find(u'&') == text.npos);
        if (at != text.npos) {
            ASSERT_LT(at + 1, text.size());
            EXPECT_EQ(text.find(u'&', at + 1), text.npos);
            EXPECT_TRUE(taken.insert(sim::Upper(text[at + 1])).second);
            EXPECT_FALSE(IsBlank(text[at + 1]) || text[at + 1] == u'%');
            const bool in_parentheses = at > 0 && at + 2 < text.size() && text[at - 1] == u'(' &&
                                        text[at + 2] == u')' && text[at + 1] >= u'A' && text[at + 1] <= u'Z';
            EXPECT_EQ(in_parentheses, east_asian);
        }
    }
}

TEST(Languages, AreTheseThirty) {
    std::multiset<LANGID> present;
    for (const sim::Catalogue* catalogue : sim::Catalogues()) {
        if (catalogue->language != sheets::made_up_language) {
            present.insert(catalogue->language);
        }
    }
    EXPECT_EQ(present, std::multiset<LANGID>(std::begin(languages), std::end(languages)));
}

TEST(Languages, DialogsHaveTheSameControlsInOrderEachWithItsRoom) {
    for (const LANGID language : languages) {
        const auto dialogs = sim::CatalogueFor(language).dialogs;
        ASSERT_EQ(dialogs.size(), 4u);
        for (std::size_t i = 0; i < dialogs.size(); ++i) {
            const sim::DialogTemplate& english = English().dialogs[i];
            SCOPED_TRACE(testing::Message() << "language " << language << ", dialog " << english.id);
            ASSERT_EQ(dialogs[i].id, english.id);
            ASSERT_EQ(dialogs[i].controls.size(), english.controls.size());
            EXPECT_EQ(dialogs[i].style, english.style);
            ExpectTextLike(dialogs[i].title, english.title);
            for (std::size_t j = 0; j < english.controls.size(); ++j) {
                const sim::ControlTemplate& control = dialogs[i].controls[j];
                SCOPED_TRACE(testing::Message()
                             << "control " << control.id << ' ' << sim::ToUtf8(control.text));
                EXPECT_EQ(control.id, english.controls[j].id);
                EXPECT_EQ(control.style, english.controls[j].style);
                EXPECT_EQ(sim::Text(control.class_name), english.controls[j].class_name);
                ExpectTextLike(control.text, english.controls[j].text);
            }
            ExpectMnemonics(dialogs[i], english, language);
            ExpectApart(dialogs[i]);
        }
    }
}

TEST(Languages, StringsFitTheirBuffersAndListsKeepTheirItems) {
    const std::map<UINT, std::ptrdiff_t> items = {
        {IDS_PARITY_LIST, 5}, {IDS_STOP_BITS_LIST, 3}, {IDS_FLOW_CONTROL_LIST, 3}};
    for (const LANGID language : languages) {
        const auto strings = sim::CatalogueFor(language).strings;
        ASSERT_EQ(strings.size(), 16u);
        for (std::size_t i = 0; i < strings.size(); ++i) {
            const sim::CatalogueString& english = English().strings[i];
            const std::u16string_view text = strings[i].text;
            SCOPED_TRACE(testing::Message()
                         << "language " << language << ", string " << english.id << ' ' << sim::ToUtf8(text));
            EXPECT_EQ(strings[i].id, english.id);
            EXPECT_EQ(strings[i].limit, english.limit);
            EXPECT_LT(std::ssize(text), english.limit);
            ExpectTextLike(text, english.text);
            if (const auto list = items.find(english.id); list != items.end()) {
                EXPECT_EQ(text.front(), u',');
                EXPECT_EQ(std::ranges::count(text, u','), list->second);
                EXPECT_EQ(text.find(u",,"), text.npos);
                EXPECT_NE(text.back(), u',');
            }
            EXPECT_TRUE(english.id != IDS_STOP_BITS_LIST || text == u",1,1.5,2");
        }
    }
}

TEST(Languages, AMissingOneIsReplacedByItsLanguageOrEnglish) {
    const std::pair<LANGID, LANGID> found[] = {{0x041D, 29}, {0x081D, 29},   {2058, 1033}, {3079, 1033},
                                               {5129, 1033}, {0x7FFF, 1033}, {29, 29},     {3084, 3084}};
    for (const auto& [asked, got] : found) {
        EXPECT_EQ(sim::CatalogueFor(asked).language, got) << asked;
    }
}

TEST(UserLanguage, IsThatOfTheLocaleWithItsCountryFirst) {
    const std::pair<const char*, LANGID> locales[] = {
        {"de_DE.UTF-8", 1031},
        {"de_AT", 1031},
        {"en_GB.UTF-8", 2057},
        {"en_AU", 1033},
        {"pt_BR", 1046},
        {"pt_PT@euro", 2070},
        {"zh_CN.GBK", 2052},
        {"zh_TW", 1028},
        {"sv_FI", 29},
        {"nn_NO", 2068},
        {"C.UTF-8", 1033},
        {"tlh_XX.UTF-8", 1033},
        {"", 1033},
    };
    for (const auto& [locale, language] : locales) {
        EXPECT_EQ(host::LanguageOfLocale(locale), language) << locale;
    }
    const std::pair<const char*, LANGID> called[] = {
        {"1031", 1031},    {"de", 1031},       {"German", 1031}, {"ger", 1031},   {"pt_pt", 2070},
        {"english", 1033}, {"29", 29},         {"norwegian", 0}, {"", 0},         {"english de", 0},
        {"1034", 0},       {"99999999999", 0}, {"zh-CN", 2052},  {"de-DE", 1031}, {"de_DE", 1031}};
    for (const auto& [name, language] : called) {
        EXPECT_EQ(host::FindLanguage(name), language) << name;
    }
    for (const LANGID language : languages) {
        EXPECT_EQ(host::FindLanguage(std::to_string(language)), language);
    }
}

} // namespace
