// Form files as files: what is refused, what is kept, byte by byte.

#include <zor/core/control.h>
#include <zor/core/setting_order.h>
#include <zor/forms/form.h>
#include <zor/forms/form_error.h>
#include <zor/forms/xml_check.h>
#include <zor/fuzz/target.h>
#include <zor/platform/headless/container.h>
#include <zor/tests/random.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace zor::forms {
namespace {

using platform::headless::HeadlessContainer;

using fuzz::classes;

std::string contents(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string refusal(std::string_view text)
{
    try {
        static_cast<void>(Form::parse(classes(), text, "f"));
    } catch (const FormError& error) {
        return error.what();
    }
    return "read";
}

std::string repeated(std::string_view text, std::size_t times)
{
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

TEST(FormFile, WhatIsNoFormIsRefusedWithItsLine)
{
    const struct {
        std::string_view what;
        std::string text;
        std::string_view refusal;
    } rows[]{
        {"nothing", "", "f:1: there is no form in it"},
        {"blanks", " \n\n", "f:3: there is no form in it"},
        {"another root", "<!-- -->\n<svg/>", "f:2: is no form of Qt Designer"},
        {"two roots", "<ui/>\n<ui/>", "f:2: a second root element"},
        {"an open element", "<ui>\n<widget>\n</ui>", "f:3: </ui> closes <widget>"},
        {"an end too many", "<ui></ui>\n</ui>", "f:2: </ui> closes nothing"},
        {"an unfinished tag", "<ui>\n<widget class=\"a\"", "f:2: <widget is not a whole tag"},
        {"an attribute without quotes", "<ui version=4/>", "f:1: an attribute's value without quotes"},
        {"a comment without end", "<ui>\n<!-->", "f:2: a comment that does not end"},
        {"a comment in a comment", "<ui>\n<!-- <!-- --> --></ui>", "f:2: a comment with -- in it"},
        {"no UTF-8", "<ui>\xFF</ui>", "f: the form is not in UTF-8"},
        {"UTF-16", std::string("\xFF\xFE<\0u\0i\0/\0>\0", 12), "f: the form is not in UTF-8"},
        {"a NUL", std::string("<ui>\n\0</ui>", 11), "f:2: a character that XML does not have"},
        {"another encoding", "<?xml version=\"1.0\" encoding=\"latin1\"?><ui/>", "f:1: only UTF-8 is read"},
        {"a type definition", "<!DOCTYPE ui [<!ENTITY a \"b\">]><ui>&a;</ui>",
         "f:1: document type definitions are not read"},
        {"an unknown entity", "<ui>\n<class>&lol9;</class></ui>", "f:2: an entity that XML does not know"},
        {"a reference cut by a comment", "<ui>&#26<!--;--></ui>", "f:1: an entity that XML does not know"},
        {"a bare ampersand", "<ui a=\"b & c\"/>", "f:1: an entity that XML does not know"},
        {"text around", "<ui/> form", "f:1: text outside the form"},
        {"deep nesting", "<ui>" + repeated("\n<a>", 1000), "f:201: elements are nested too deeply"},
        {"a million elements", "<ui>" + repeated("<a/>", kMostElements), "f:1: the form has too many elements"},
        {"100 MB", std::string(100 * 1000 * 1000, '<'), "f:1: the form is too large"},
    };
    for (const auto& [what, text, expected] : rows)
        EXPECT_EQ(refusal(text), expected) << what;
    EXPECT_EQ(refusal("\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?>\r\n<ui/>\r\n"), "read");
}

TEST(FormFile, WhatIsNotTouchedKeepsEveryByte)
{
    const std::string text = contents(ZOR_TEST_DATA "/forms/tank.ui");
    ASSERT_FALSE(text.empty());
    HeadlessContainer container;
    Form form = Form::parse(classes(), text, "f");
    std::vector<core::ControlPtr<>> controls;
    for (std::size_t i = 0; i < form.items().size(); ++i) {
        controls.push_back(form.items()[i].info->create(container));
        controls.back()->initialiseProperties();
        form.fill(i, *controls.back());
        form.store(form.items()[i].name, *controls.back(), container);
    }
    EXPECT_TRUE(form.notes().empty());
    EXPECT_EQ(form.text(), text);

    controls[0]->setProperty("MaxLength", 25);
    controls[0]->setProperty("IconEnable", true);
    form.store("level", *controls[0], container);
    std::string changed = text;
    const std::string_view before = "   <property name=\"MaxValue\">\n";
    changed.insert(changed.find(before),
                   "   <property name=\"MaxLength\">\n    <number>25</number>\n   </property>\n");
    changed.replace(changed.find("<bool>false"), 11, "<bool>true");
    EXPECT_EQ(form.text(), changed);

    form.keepOnly([](const Form::Item& item) { return item.name != "name"; });
    EXPECT_EQ(form.text().find("<item>"), std::string::npos);
    EXPECT_EQ(form.items().size(), 1U);
}

/// A control with random settings, written and opened again, has the same settings.
TEST(FormFile, ALinkStaysALinkAndAStrangersFileAsItWas)
{
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(testing::TempDir()) / "zor-form-links";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const std::string text = "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"a\"/></ui>\n";
    std::ofstream(folder / "real.ui") << "old";
    std::ofstream(folder / "real.ui.new") << "somebody else's";
    fs::permissions(folder / "real.ui", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.ui", folder / "link.ui");
    Form::parse(classes(), text, "f").write(folder / "link.ui");
    EXPECT_TRUE(fs::is_symlink(folder / "link.ui"));
    EXPECT_EQ(contents(folder / "real.ui"), text);
    EXPECT_EQ(fs::status(folder / "real.ui").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(contents(folder / "real.ui.new"), "somebody else's");
    EXPECT_THROW(Form::parse(classes(), text, "f").write(folder / "no" / "a.ui"), FormError);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 3) << "something is left over";
}

TEST(FormFile, EveryClassSurvivesARandomRound)
{
    tests::Random random;
    const auto pick = [&](int least, int most) { return std::uniform_int_distribution(least, most)(random); };
    constexpr std::array<std::string_view, 6> kTexts{"", "a", " <&> \"'\r\n\t", "°µ€\U0001F600", "]]>", "True"};
    for (const core::ClassInfo* info : classes().classes()) {
        for (int round = 0; round < 20; ++round) {
            HeadlessContainer container;
            const core::ControlPtr<> control = info->create(container);
            control->initialiseProperties();
            for (const core::PropertyRow* row : core::settingOrder(*info)) {
                if (row->key.empty() || pick(0, 2) == 0)
                    continue;
                try {
                    switch (row->field.kind) {
                    case core::ValueKind::Boolean: control->put(*row, pick(0, 1) == 1); break;
                    case core::ValueKind::Double: control->put(*row, pick(-999, 999) / 8.0); break;
                    case core::ValueKind::Text:
                        control->put(*row, kTexts[static_cast<std::size_t>(pick(0, 5))]);
                        break;
                    default: control->put(*row, pick(0, 60)); break;
                    }
                } catch (const std::exception&) {
                    // What a control refuses is no setting.
                }
            }
            Form form(classes());
            form.store("c", *control, container);
            const std::string text = form.text();
            Form reopened = Form::parse(classes(), text, "f");
            const core::ControlPtr<> copy = info->create(container);
            copy->initialiseProperties();
            reopened.fill(0, *copy);
            EXPECT_TRUE(reopened.notes().empty()) << reopened.notes()[0];
            reopened.store("c", *copy, container);
            EXPECT_EQ(reopened.text(), text) << info->name;
            for (const core::PropertyRow* row : info->properties) {
                const bool isSet = !row->key.empty() && row->access != core::Access::Derived;
                EXPECT_TRUE(!isSet || copy->get(*row) == control->get(*row))
                    << info->name << '.' << row->name << '\n'
                    << text;
            }
        }
    }
}

} // namespace
} // namespace zor::forms
