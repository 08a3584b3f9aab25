#include <zor/forms/form_error.h>
#include <zor/forms/xml_check.h>
#include <zor/platform/text.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace zor::forms {
namespace {

using std::string;
using std::string_view;

constexpr string_view kBlanks = " \t\r\n";
constexpr string_view kNotInNames = " \t\r\n<>&'\"/=?!";
constexpr auto npos = string_view::npos;

/// "#123" or "#x1F".
bool isNumber(string_view entity)
{
    const bool isHex = entity.starts_with("#x");
    const string_view digits = entity.starts_with('#') ? entity.substr(isHex ? 2 : 1) : string_view();
    return !digits.empty() && digits.find_first_not_of(isHex ? "0123456789abcdefABCDEF" : "0123456789") == npos;
}

class Check {
public:
    Check(string_view text, string_view file) : m_text(text), m_file(file) {}

    void run()
    {
        // Before anything reads all of it.
        if (m_text.size() > kMostBytes)
            fail("the form is too large");
        if (!platform::isUtf8(m_text))
            throw FormError(m_file, 0, "the form is not in UTF-8");
        const auto control = std::ranges::find_if(m_text, [](char c) {
            const auto byte = static_cast<unsigned char>(c);
            return byte < 0x20 && kBlanks.find(c) == npos;
        });
        if (control != m_text.end()) {
            m_at = static_cast<std::size_t>(control - m_text.begin());
            fail("a character that XML does not have");
        }
        while (m_at < m_text.size())
            m_text[m_at] == '<' ? markup() : characters();
        if (!m_open.empty())
            fail("<" + string(m_open.back()) + "> is not closed");
        if (m_elements == 0)
            fail("there is no form in it");
    }

private:
    [[noreturn]] void fail(string_view what) const { throw FormError(m_file, lineOf(m_text, m_at), what); }
    [[nodiscard]] bool starts(string_view with) const { return m_text.substr(m_at).starts_with(with); }
    [[nodiscard]] bool isAt(char c) const { return m_at < m_text.size() && m_text[m_at] == c; }

    /// Answers what lies between.
    string_view skip(string_view what, string_view begin, string_view end)
    {
        const auto from = m_at + begin.size();
        const auto found = m_text.find(end, from);
        if (found == npos)
            fail(string(what) + " that does not end");
        m_at = found + end.size();
        return m_text.substr(from, found - from);
    }
    void comment()
    {
        const std::size_t start = m_at;
        // Two hyphens inside are no XML, and would be written otherwise than they were read.
        if (const string_view inside = skip("a comment", "<!--", "-->");
            inside.find("--") != npos || inside.ends_with('-')) {
            m_at = start;
            fail("a comment with -- in it");
        }
    }
    void skipBlanks() { m_at = std::min(m_text.find_first_not_of(kBlanks, m_at), m_text.size()); }
    string_view name()
    {
        const auto end = std::min(m_text.find_first_of(kNotInNames, m_at), m_text.size());
        const string_view found = m_text.substr(m_at, end - m_at);
        if (found.empty())
            fail("a name is missing");
        m_at = end;
        return found;
    }

    void markup()
    {
        if (starts("<!--"))
            return comment();
        if (starts("<![CDATA[")) {
            if (m_open.empty())
                fail("text outside the form");
            skip("a CDATA section", "<![CDATA[", "]]>");
            return;
        }
        if (starts("<!"))
            fail("document type definitions are not read");
        if (starts("<?"))
            return instruction();
        if (starts("</"))
            return closing();
        opening();
    }

    void instruction()
    {
        const string_view whole = skip("an instruction", "<?", "?>");
        const auto encoding = whole.find("encoding");
        if (!whole.starts_with("xml ") || encoding == npos)
            return;
        string named(whole.substr(encoding));
        std::ranges::transform(named, named.begin(),
                               [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
        if (named.find("utf-8") == npos)
            fail("only UTF-8 is read");
    }

    void opening()
    {
        const std::size_t start = m_at++;
        const string_view element = name();
        if (m_open.empty() && m_elements != 0) {
            m_at = start;
            fail("a second root element");
        }
        if (++m_elements > kMostElements)
            fail("the form has too many elements");
        while (true) {
            const std::size_t before = m_at;
            skipBlanks();
            if (isAt('>') || isAt('/'))
                break;
            if (m_at == before || m_at >= m_text.size())
                fail("<" + string(element.substr(0, kShown)) + " is not a whole tag");
            attribute();
        }
        const bool isEmpty = isAt('/');
        m_at += isEmpty ? 1 : 0;
        if (!isAt('>'))
            fail("a tag that does not end");
        ++m_at;
        if (isEmpty)
            return;
        if (m_open.size() >= kDeepest)
            fail("elements are nested too deeply");
        m_open.push_back(element);
    }

    void attribute()
    {
        static_cast<void>(name());
        skipBlanks();
        if (!isAt('='))
            fail("an attribute without a value");
        ++m_at;
        skipBlanks();
        if (!isAt('"') && !isAt('\''))
            fail("an attribute's value without quotes");
        const char quote = m_text[m_at++];
        while (!isAt(quote)) {
            if (m_at >= m_text.size() || isAt('<'))
                fail("an attribute's value that does not end");
            isAt('&') ? reference() : static_cast<void>(++m_at);
        }
        ++m_at;
    }

    void closing()
    {
        m_at += 2;
        const string_view element = name();
        skipBlanks();
        if (m_open.empty())
            fail("</" + string(element.substr(0, kShown)) + "> closes nothing");
        if (m_open.back() != element)
            fail("</" + string(element.substr(0, kShown)) + "> closes <" +
                 string(m_open.back().substr(0, kShown)) + ">");
        if (!isAt('>'))
            fail("a tag that does not end");
        ++m_at;
        m_open.pop_back();
    }

    void characters()
    {
        const auto end = std::min(m_text.find('<', m_at), m_text.size());
        if (m_open.empty()) {
            skipBlanks();
            if (m_at < end)
                fail("text outside the form");
            return;
        }
        while (m_at < end) {
            if (isAt('&'))
                reference();
            else
                m_at = std::min(m_text.find('&', m_at), end);
        }
    }

    void reference()
    {
        constexpr std::array<string_view, 5> kKnown{"lt", "gt", "amp", "quot", "apos"};
        constexpr std::size_t kLongest = 10;
        const string_view after = m_text.substr(m_at + 1, kLongest);
        const auto end = after.find(';');
        const string_view entity = end == npos ? string_view() : after.substr(0, end);
        if (!isNumber(entity) && std::ranges::find(kKnown, entity) == kKnown.end())
            fail("an entity that XML does not know");
        m_at += entity.size() + 2;
    }

    static constexpr std::size_t kShown = 60;

    string_view m_text;
    string_view m_file;
    std::size_t m_at = 0;
    std::size_t m_elements = 0;
    std::vector<string_view> m_open;
};

} // namespace

std::size_t lineOf(string_view text, std::size_t position) noexcept
{
    return 1 + static_cast<std::size_t>(std::ranges::count(text.substr(0, position), '\n'));
}

void checkXml(string_view text, string_view file) { Check(text, file).run(); }

} // namespace zor::forms
