#include <zor/platform/text.h>
#include <zor/tools/zorsh/notation.h>
#include <zor/tools/zorsh/script.h>

#include <algorithm>
#include <istream>
#include <iterator>
#include <ostream>

namespace zor::console {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kErrorWord = "error ";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kColourLength = 7;

bool startsWithColour(std::string_view text)
{
    return text.starts_with('#') && text.size() >= kColourLength &&
           text.substr(1, kColourLength - 1).find_first_not_of(kHexDigits) == std::string::npos &&
           (text.size() == kColourLength || text[kColourLength] == ' ' || text[kColourLength] == '\t' ||
            text[kColourLength] == '\r');
}

/// What stands behind "=", in canonical spelling. A colour starts like a comment and is none.
std::string expectedText(std::string_view text)
{
    std::string spelled;
    for (std::string_view rest = text;;) {
        const std::string_view words = withoutComment(rest);
        spelled += words;
        rest.remove_prefix(static_cast<std::size_t>(words.data() + words.size() - rest.data()));
        rest.remove_prefix(std::min(rest.find_first_not_of(" \t\r"), rest.size()));
        if (!startsWithColour(rest))
            return canonical(spelled);
        spelled += spelled.empty() ? "" : " ";
        std::ranges::transform(rest.substr(0, kColourLength), std::back_inserter(spelled),
                               [](char c) { return c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c; });
        rest.remove_prefix(kColourLength);
        spelled += rest.empty() ? "" : " ";
    }
}

bool matches(std::string_view expected, const OutputLine& came)
{
    const std::string text = canonical(came.text);
    if (expected == text)
        return true;
    // The text of an error is for people: its number alone is enough, and so is the text without what it names.
    if (came.kind != OutputLine::Kind::Error || !text.starts_with(expected) || !expected.starts_with(kErrorWord) ||
        expected.size() == kErrorWord.size())
        return false;
    const bool isNumberOnly = expected.find_first_not_of(kDigits, kErrorWord.size()) == std::string_view::npos;
    return text[expected.size()] == (isNumberOnly ? ' ' : ':');
}

/// A failure is read by a person: what is longer than a screen is cut, behind a whole character.
std::string shortened(std::string_view text)
{
    constexpr std::size_t kMost = 2000;
    return platform::validUtf8(text.substr(0, platform::byteOffset(text, kMost)));
}

} // namespace

Script::Script(Session& session, std::string name, ScriptOptions options, std::ostream& output,
               std::ostream& failures)
    : m_session(session), m_name(std::move(name)), m_options(options), m_output(output), m_failures(failures)
{}

bool Script::feed(std::string_view line)
{
    if (++m_line == 1 && line.starts_with(kByteOrderMark))
        line.remove_prefix(kByteOrderMark.size());
    const std::string_view content = withoutComment(line);
    if (content.empty())
        return true;
    if (content.front() == '=') {
        // From the whole line: a colour would have been taken for a comment.
        expect(line.substr(line.find('=') + 1));
        return true;
    }
    if (m_session.hasEnded())
        return false;
    judge();
    m_commandLine = m_line;
    m_command = content;
    m_came = m_session.run(content);
    if (m_options.echoAll) {
        for (const OutputLine& came : m_came)
            m_output << came.text << '\n';
        m_output.flush();
    }
    return !(m_session.hasEnded() && m_options.echoAll);
}

void Script::feedAll(std::istream& input)
{
    std::string line;
    while (std::getline(input, line) && feed(line))
        ;
    finish();
}

void Script::finish()
{
    judge();
    m_commandLine = 0;
}

void Script::expect(std::string_view text)
{
    m_expected.push_back({expectedText(text), m_line});
    if (m_commandLine == 0) {
        fail(m_line, "a command in front of this line", "none");
        m_expected.clear();
    }
}

void Script::judge()
{
    if (!m_expected.empty()) {
        ++m_expectationCount;
        if (m_expected.size() == 1 && m_expected.front().text.empty() && m_came.empty())
            m_expected.clear();
        else
            compare();
    } else {
        const auto failure = std::ranges::find_if(
            m_came, [](const OutputLine& line) { return line.kind != OutputLine::Kind::Answer; });
        if (!m_options.echoAll) {
            for (const OutputLine& came : m_came)
                m_output << came.text << '\n';
        }
        if (failure != m_came.end() && !m_options.errorsAllowed)
            fail(m_commandLine, failure->kind == OutputLine::Kind::Error ? "no error" : "no refusal",
                 failure->text);
    }
    m_expected.clear();
    m_came.clear();
}

void Script::compare()
{
    const bool expectsNothing = m_expected.size() == 1 && m_expected.front().text.empty();
    const std::size_t expectedCount = expectsNothing ? 0 : m_expected.size();
    for (std::size_t i = 0; i < std::max(expectedCount, m_came.size()); ++i) {
        if (i >= expectedCount)
            return fail(m_expected.back().line, i == 0 ? "nothing" : "no further line", m_came[i].text);
        if (i >= m_came.size())
            return fail(m_expected[i].line, m_expected[i].text, "nothing");
        if (!matches(m_expected[i].text, m_came[i]))
            return fail(m_expected[i].line, m_expected[i].text, m_came[i].text);
    }
}

void Script::fail(int line, std::string_view expected, std::string_view got)
{
    ++m_failureCount;
    m_output.flush();
    m_failures << m_name << ':' << line << ": ";
    if (m_commandLine != 0)
        m_failures << shortened(m_command) << ": ";
    m_failures << "expected " << shortened(expected) << " got " << shortened(got) << '\n';
}

} // namespace zor::console
