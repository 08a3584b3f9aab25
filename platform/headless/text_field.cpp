#include <zor/platform/headless/text_field.h>
#include <zor/platform/text.h>

#include <algorithm>

namespace zor::platform::headless {

void HeadlessTextField::setText(std::string_view text)
{
    if (m_text == text)
        return;
    m_text = text;
    m_start = m_length = 0;
    report(Notice::Change);
}

void HeadlessTextField::select(std::size_t start, std::size_t length)
{
    const std::size_t count = characterCount(m_text);
    m_start = std::min(start, count);
    m_length = std::min(length, count - m_start);
}

std::size_t HeadlessTextField::bytesTo(std::size_t character) const noexcept
{
    return byteOffset(m_text, character);
}

std::string HeadlessTextField::selectedText() const
{
    const std::size_t from = bytesTo(m_start);
    return m_text.substr(from, bytesTo(m_start + m_length) - from);
}

void HeadlessTextField::replaceSelection(std::string_view text)
{
    const std::size_t from = bytesTo(m_start);
    const std::size_t old = bytesTo(m_start + m_length) - from;
    m_text.replace(from, old, text);
    m_start += characterCount(text);
    m_length = 0;
    // Typing a letter over itself is a change as well.
    if (old > 0 || !text.empty())
        report(Notice::Change);
}

} // namespace zor::platform::headless
