#pragma once

/// Texts that nearly all controls have in common.

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace zor::core {

/// What a control says in certain words until somebody gives it others: those who begin with the same words share
/// them.
class SharedText {
public:
    /// Words, and whether they are kept for all.
    struct Kept {
        std::string text;      ///< what is said
        bool isCommon = false; ///< kept for all, and never given up
    };

    /// `common` must outlive the text. What was moved from may be assigned to and destroyed, and nothing else.
    explicit SharedText(const Kept& common) noexcept : m_kept(&common) {}
    explicit SharedText(std::string_view own) : m_kept(new Kept{std::string(own)}) {}
    /// What it says.
    [[nodiscard]] const std::string& text() const noexcept { return m_kept->text; }
    /// The same, where a text is asked for.
    // NOLINTNEXTLINE(google-explicit-constructor)
    operator const std::string&() const noexcept { return text(); }
    /// Whether it says this.
    bool operator==(std::string_view other) const noexcept { return text() == other; }

private:
    struct Release {
        void operator()(const Kept* kept) const noexcept
        {
            if (!kept->isCommon)
                delete kept;
        }
    };
    std::unique_ptr<const Kept, Release> m_kept;
};

namespace detail {

/// A text among the arguments of a template.
template <std::size_t Size>
struct Words {
    std::array<char, Size> text{};
    consteval Words(const char (&words)[Size]) // NOLINT(google-explicit-constructor): reads as the words
    {
        std::copy_n(words, Size, text.begin());
    }
};

} // namespace detail

/// What all who begin with these words share.
template <detail::Words words>
[[nodiscard]] SharedText shared()
{
    static const SharedText::Kept common{words.text.data(), true};
    return SharedText(common);
}

} // namespace zor::core
