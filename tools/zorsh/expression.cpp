// Sums over numbers and what can be read.

#include <zor/platform/depth.h>
#include <zor/platform/error.h>
#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>

#include <charconv>
#include <cmath>

namespace zor::console {
namespace {

constexpr int kMostBrackets = 200; ///< brackets and signs within each other
constexpr std::string_view kEndsOperand = " \t+-*/()";

class Parser {
public:
    Parser(std::string_view text, Session& session) : m_rest(text), m_session(session) {}

    double whole()
    {
        const double value = sum();
        skip();
        if (!m_rest.empty())
            raiseError(ErrorNumber::InvalidCall, m_rest);
        if (!std::isfinite(value))
            raiseError(ErrorNumber::Overflow);
        return value;
    }

private:
    void skip()
    {
        while (!m_rest.empty() && (m_rest.front() == ' ' || m_rest.front() == '\t'))
            m_rest.remove_prefix(1);
    }

    bool take(char c)
    {
        skip();
        if (m_rest.empty() || m_rest.front() != c)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    double sum()
    {
        double value = product();
        while (true) {
            if (take('+'))
                value += product();
            else if (take('-'))
                value -= product();
            else
                return value;
        }
    }

    double product()
    {
        double value = factor();
        while (true) {
            if (take('*')) {
                value *= factor();
            } else if (take('/')) {
                const double divisor = factor();
                if (divisor == 0.0)
                    raiseError(ErrorNumber::DivisionByZero);
                value /= divisor;
            } else {
                return value;
            }
        }
    }

    double factor()
    {
        const platform::Depth::Level level(m_depth);
        if (m_depth.levels() > kMostBrackets)
            raiseError(ErrorNumber::InvalidCall, "too many brackets and signs within each other");
        if (take('-'))
            return -factor();
        return take('(') ? bracketed() : operand();
    }

    double bracketed()
    {
        const double value = sum();
        if (!take(')'))
            raiseError(ErrorNumber::InvalidCall, "a bracket is not closed");
        return value;
    }

    std::string_view takeWord(std::size_t length)
    {
        const std::string_view word = m_rest.substr(0, length);
        m_rest.remove_prefix(word.size());
        return word;
    }

    double operand()
    {
        const char first = m_rest.empty() ? '\0' : m_rest.front();
        if ((first >= '0' && first <= '9') || first == '.')
            return takeNumber();
        auto length = m_rest.find_first_of(kEndsOperand);
        const std::string_view name = m_rest.substr(0, length);
        if (name.find('.') == std::string_view::npos)
            return toDouble(takeWord(length));
        // An index belongs to the aspect in front of it.
        if (length != std::string_view::npos && m_rest[length] == '(') {
            const auto close = m_rest.find(')', length);
            length = close == std::string_view::npos ? close : close + 1;
        }
        const std::string_view path = takeWord(length);
        const Reading reading = read(m_session, path);
        if (reading.form == Reading::Form::Word)
            raiseError(ErrorNumber::TypeMismatch, path);
        return naming(path, [&] { return reading.value.toDouble(); });
    }

    static double toDouble(std::string_view word)
    {
        return naming(word, [&] { return parseValue(word).toDouble(); });
    }

    /// An exponent's sign belongs to the number, so a number does not end where a name does.
    double takeNumber()
    {
        if (m_rest.starts_with("0x") || m_rest.starts_with("0X"))
            return toDouble(takeWord(m_rest.find_first_of(kEndsOperand)));
        double number = 0;
        const char* begin = m_rest.data();
        const auto [end, error] = std::from_chars(begin, begin + m_rest.size(), number);
        return toDouble(takeWord(static_cast<std::size_t>(end - begin)));
    }

    std::string_view m_rest;
    Session& m_session;
    platform::Depth m_depth;
};

} // namespace

double evaluate(std::string_view expression, Session& session) { return Parser(expression, session).whole(); }

} // namespace zor::console
