#include <zor/monitor/data/printable.h>
#include <zor/monitor/link/frame_decoder.h>

#include <QDateTime>
#include <QtGlobal>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

constexpr unsigned kExceptionBit = 0x80;
constexpr unsigned kByte = 8;

enum class Item : std::uint8_t {
    End,
    Address,
    Count,
    Value,
    CoilValue,
    AndMask,
    OrMask,
    ByteCount, ///< how long the list behind it is
    Bits,
    Registers,
    Type,
    ReadCode,
    Object,
    Conformity,
    More,
    Texts,
};

struct ItemRow {
    std::string_view name;
    std::size_t size; ///< bytes; of a list, of one of it
};

// In the order of Item.
constexpr std::array<ItemRow, 16> kItems{{
    {"", 0},
    {QT_TRANSLATE_NOOP("frames", "address"), 2},
    {QT_TRANSLATE_NOOP("frames", "count"), 2},
    {QT_TRANSLATE_NOOP("frames", "value"), 2},
    {QT_TRANSLATE_NOOP("frames", "value"), 2},
    {QT_TRANSLATE_NOOP("frames", "bits kept"), 2},
    {QT_TRANSLATE_NOOP("frames", "bits set"), 2},
    {QT_TRANSLATE_NOOP("frames", "byte count"), 1},
    {QT_TRANSLATE_NOOP("frames", "coil"), 1},
    {QT_TRANSLATE_NOOP("frames", "register"), 2},
    {QT_TRANSLATE_NOOP("frames", "kind of request"), 1},
    {QT_TRANSLATE_NOOP("frames", "part"), 1},
    {QT_TRANSLATE_NOOP("frames", "text"), 1},
    {QT_TRANSLATE_NOOP("frames", "conformity"), 1},
    {QT_TRANSLATE_NOOP("frames", "more follows"), 1},
    {QT_TRANSLATE_NOOP("frames", "text"), 2},
}};

using Items = std::array<Item, 6>;
struct LayoutRow {
    Function function;
    std::string_view name;
    Items request;
    Items reply;
};

constexpr Items kPlace{Item::Address, Item::Count};
constexpr Items kBits{Item::ByteCount, Item::Bits};
constexpr Items kRegisters{Item::ByteCount, Item::Registers};
constexpr Items kOne{Item::Address, Item::Value};
constexpr Items kCoil{Item::Address, Item::CoilValue};
constexpr Items kMask{Item::Address, Item::AndMask, Item::OrMask};
constexpr std::array kLayouts{
    LayoutRow{Function::ReadCoils, QT_TRANSLATE_NOOP("frames", "read coils"), kPlace, kBits},
    LayoutRow{Function::ReadDiscrete, QT_TRANSLATE_NOOP("frames", "read discrete inputs"), kPlace, kBits},
    LayoutRow{Function::ReadHolding, QT_TRANSLATE_NOOP("frames", "read holding registers"), kPlace, kRegisters},
    LayoutRow{Function::ReadInput, QT_TRANSLATE_NOOP("frames", "read input registers"), kPlace, kRegisters},
    LayoutRow{Function::WriteCoil, QT_TRANSLATE_NOOP("frames", "write a coil"), kCoil, kCoil},
    LayoutRow{Function::WriteOne, QT_TRANSLATE_NOOP("frames", "write a register"), kOne, kOne},
    LayoutRow{Function::WriteCoils,
              QT_TRANSLATE_NOOP("frames", "write coils"),
              {Item::Address, Item::Count, Item::ByteCount, Item::Bits},
              kPlace},
    LayoutRow{Function::WriteMany,
              QT_TRANSLATE_NOOP("frames", "write registers"),
              {Item::Address, Item::Count, Item::ByteCount, Item::Registers},
              kPlace},
    LayoutRow{Function::MaskWrite, QT_TRANSLATE_NOOP("frames", "masked write of a register"), kMask, kMask},
    LayoutRow{Function::Identify,
              QT_TRANSLATE_NOOP("frames", "device identification"),
              {Item::Type, Item::ReadCode, Item::Object},
              {Item::Type, Item::ReadCode, Item::Conformity, Item::More, Item::Object, Item::Texts}},
};

const LayoutRow* layoutOf(unsigned function)
{
    const auto* const row = std::ranges::find(kLayouts, static_cast<Function>(function), &LayoutRow::function);
    return row == kLayouts.end() ? nullptr : row;
}

/// Goes through the bytes and never beyond their end.
class Reader {
public:
    explicit Reader(const Frame& frame) : m_frame(frame), m_end(frame.bytes.size())
    {
        const std::size_t tail = frame.framing->tail;
        m_end -= std::min(m_end, tail);
    }

    std::vector<Field> read()
    {
        readHead();
        if (m_at < m_end) {
            const unsigned code = m_frame.bytes[m_at];
            const unsigned function = code & ~kExceptionBit;
            const LayoutRow* layout = layoutOf(function);
            const auto name =
                layout != nullptr ? layout->name : std::string_view(QT_TRANSLATE_NOOP("frames", "unknown"));
            Field& field = take(QT_TRANSLATE_NOOP("frames", "function"), 1);
            field.value = std::to_string(function);
            field.meaning = name;
            if (code != function && m_at < m_end)
                take(QT_TRANSLATE_NOOP("frames", "exception"), 1).meaning = exceptionMeaning(m_frame.bytes[m_at]);
            else if (layout != nullptr && code == function)
                readItems(m_frame.kind == Frame::Kind::Request ? layout->request : layout->reply);
        }
        if (m_at < m_end)
            takeHex(QT_TRANSLATE_NOOP("frames", "left over"), m_end - m_at);
        readTail();
        return std::move(m_fields);
    }

private:
    [[nodiscard]] unsigned number(std::size_t at, std::size_t size) const
    {
        unsigned value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << kByte | m_frame.bytes[at + i];
        return value;
    }

    Field& take(std::string_view name, std::size_t size)
    {
        m_fields.push_back({m_at, size, name, -1, std::to_string(number(m_at, size))});
        m_at += size;
        return m_fields.back();
    }

    void takeHex(std::string_view name, std::size_t size)
    {
        m_fields.push_back({m_at, size, name, -1, hexOf(std::span(m_frame.bytes).subspan(m_at, size))});
        m_at += size;
    }

    void readHead()
    {
        constexpr std::array<std::string_view, 3> kTcp{QT_TRANSLATE_NOOP("frames", "transaction"),
                                                       QT_TRANSLATE_NOOP("frames", "protocol"),
                                                       QT_TRANSLATE_NOOP("frames", "length")};
        if (m_frame.framing->numbered) {
            for (const std::string_view name : kTcp) {
                if (m_end - m_at >= 2)
                    take(name, 2);
            }
        }
        if (m_at + 1 == m_frame.framing->head && m_at < m_end)
            take(QT_TRANSLATE_NOOP("frames", "unit"), 1);
    }

    void readItems(const Items& items)
    {
        std::size_t list = m_end;
        for (const Item item : items) {
            const ItemRow& row = kItems[static_cast<std::size_t>(item)];
            if (item == Item::End || m_end - m_at < row.size)
                return;
            if (item == Item::Bits)
                readBits(list);
            else if (item == Item::Registers)
                readRegisters(list);
            else if (item == Item::Texts)
                readTexts();
            else
                readNumber(item, row);
            if (item == Item::ByteCount)
                list = std::min(m_end, m_at + number(m_at - 1, 1));
        }
    }

    void readNumber(Item item, const ItemRow& row)
    {
        Field& field = take(row.name, row.size);
        const unsigned value = number(field.at, row.size);
        if (item == Item::CoilValue)
            field.meaning = value == 0         ? QT_TRANSLATE_NOOP("frames", "off")
                            : value == 0xFF00U ? QT_TRANSLATE_NOOP("frames", "on")
                                               : QT_TRANSLATE_NOOP("frames", "neither on nor off");
    }

    /// A word of the request, behind its function code.
    [[nodiscard]] std::optional<int> asked(std::size_t word) const
    {
        const Frame& request = m_frame.request != nullptr ? *m_frame.request : m_frame;
        const std::size_t at = request.framing->head + 1 + 2 * word;
        if (request.kind != Frame::Kind::Request || request.bytes.size() < at + 2)
            return std::nullopt;
        return request.bytes[at] << kByte | request.bytes[at + 1];
    }

    void readRegisters(std::size_t end)
    {
        for (int index = asked(0).value_or(0); end - m_at >= 2; ++index)
            take(QT_TRANSLATE_NOOP("frames", "register"), 2).index = index;
    }

    void readBits(std::size_t end)
    {
        const int first = asked(0).value_or(0);
        const int count = std::min(asked(1).value_or(INT32_MAX), static_cast<int>((end - m_at) * kByte));
        for (int i = 0; i < count; ++i) {
            const std::size_t at = m_at + static_cast<std::size_t>(i) / kByte;
            const bool on = (m_frame.bytes[at] >> static_cast<unsigned>(i) % kByte & 1U) != 0;
            const bool ends = static_cast<unsigned>(i) % kByte == kByte - 1 || i == count - 1;
            m_fields.push_back({at, ends ? 1U : 0U, QT_TRANSLATE_NOOP("frames", "coil"), first + i, on ? "1" : "0",
                                on ? QT_TRANSLATE_NOOP("frames", "on") : QT_TRANSLATE_NOOP("frames", "off")});
        }
        m_at += (static_cast<std::size_t>(count) + kByte - 1) / kByte;
    }

    void readTexts()
    {
        take(QT_TRANSLATE_NOOP("frames", "count"), 1);
        while (m_end - m_at >= 2 && m_end - m_at - 2 >= m_frame.bytes[m_at + 1]) {
            const int index = m_frame.bytes[m_at];
            const std::size_t size = m_frame.bytes[m_at + 1];
            const auto* begin = m_frame.bytes.data() + m_at + 2;
            std::string text = printableAscii(std::string(begin, begin + size));
            m_fields.push_back({m_at, size + 2, QT_TRANSLATE_NOOP("frames", "text"), index, std::move(text)});
            m_at += size + 2;
        }
    }

    void readTail()
    {
        const std::size_t size = m_frame.bytes.size() - m_end;
        if (size == 0)
            return;
        const auto all = std::span(m_frame.bytes);
        takeHex(QT_TRANSLATE_NOOP("frames", "checksum"), size);
        const bool right = size == 2 && (all[m_at - 2] | static_cast<unsigned>(all[m_at - 1]) << kByte) ==
                                            checksum(all.first(m_at - 2));
        m_fields.back().meaning =
            right ? QT_TRANSLATE_NOOP("frames", "right") : QT_TRANSLATE_NOOP("frames", "wrong");
    }

    const Frame& m_frame;
    std::vector<Field> m_fields;
    std::size_t m_at = 0;
    std::size_t m_end;
};

const Field* fieldOf(const std::vector<Field>& fields, std::string_view name)
{
    const auto found = std::ranges::find(fields, name, &Field::name);
    return found == fields.end() ? nullptr : &*found;
}

} // namespace

std::vector<Field> decodeFrame(const Frame& frame) { return Reader(frame).read(); }

std::string summaryOf(const Frame& frame, const Translate& translate)
{
    const std::vector<Field> fields = decodeFrame(frame);
    const auto function = std::ranges::find(fields, std::string_view("function"), &Field::name);
    std::string text = frame.note.empty() ? std::string() : translate(frame.note);
    if (function == fields.end())
        return text;
    text += (text.empty() ? "" : ": ") + function->value + ' ' + translate(function->meaning);
    int next = -1; // the register or coil that would carry the list on
    for (auto field = function + 1; field != fields.end(); ++field) {
        if (field->name == "byte count" || field->name == "checksum")
            continue;
        const bool goesOn = field->index >= 0 && field->index == next;
        next = field->index >= 0 ? field->index + 1 : -1;
        if (!goesOn)
            text += ", " + translate(field->name);
        if (!goesOn && field->index >= 0)
            text += ' ' + std::to_string(field->index) + ':';
        text += ' ' + field->value;
        if (!field->meaning.empty() && field->index < 0)
            text += " (" + translate(field->meaning) + ')';
    }
    return text;
}

std::string unitOf(const Frame& frame)
{
    const std::vector<Field> fields = decodeFrame(frame);
    const Field* unit = fieldOf(fields, "unit");
    return unit != nullptr ? unit->value : std::string();
}

std::string hexOf(std::span<const std::uint8_t> bytes)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += text.empty() ? "" : " ";
        text += kDigits[byte >> 4U];
        text += kDigits[byte & 0xFU];
    }
    return text;
}

std::string lineOf(const Frame& frame)
{
    constexpr std::array<std::string_view, 3> kDirections{"->", "<-", "--"}; // in the order of Frame::Kind
    std::string line =
        QDateTime::fromMSecsSinceEpoch(frame.time, Qt::UTC).toString(Qt::ISODateWithMs).toStdString() + ' ';
    line += kDirections[static_cast<std::size_t>(frame.kind)];
    if (const std::string unit = unitOf(frame); !unit.empty())
        line += " unit " + unit;
    line += "  " + summaryOf(frame, [](std::string_view word) { return std::string(word); });
    if (frame.milliseconds >= 0)
        line += QString("  (%1 ms)").arg(frame.milliseconds, 0, 'f', 1).toStdString();
    if (!frame.bytes.empty())
        line += "  | " + hexOf(frame.bytes);
    return line;
}

} // namespace zor::monitor
