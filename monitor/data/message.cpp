#include <zor/monitor/data/message.h>

#include <QCoreApplication>

namespace zor::monitor {

std::string message(const char* english, std::initializer_list<std::string> parts)
{
    const std::string text = QCoreApplication::translate("texts", english).toStdString();
    std::string whole;
    // In one pass: a part may have a % of its own.
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t part =
            text[i] == '%' && i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '1') : parts.size();
        if (part < parts.size())
            whole += *(parts.begin() + static_cast<std::ptrdiff_t>(part));
        else
            whole += text[i];
        i += part < parts.size() ? 1 : 0;
    }
    return whole;
}

} // namespace zor::monitor
