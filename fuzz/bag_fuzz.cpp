#include <zor/core/control.h>
#include <zor/fuzz/target.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/headless/memory_bag.h>

namespace zor::fuzz {
namespace {

using platform::headless::MemoryPropertyBag;

Variant value(Pieces& pieces)
{
    switch (pieces.below(6)) {
    case 0: return pieces.below(2) == 1;
    case 1: return pieces.take<std::int16_t>();
    case 2: return pieces.take<std::int32_t>();
    case 3: return pieces.take<double>();
    case 4: return {};
    default: return pieces.line();
    }
}

MemoryPropertyBag stored(const core::ClassInfo& info, const MemoryPropertyBag& bag)
{
    platform::headless::HeadlessContainer container;
    const core::ControlPtr<> control = info.create(container);
    control->readProperties(bag);
    MemoryPropertyBag again;
    control->writeProperties(again);
    return again;
}

/// What a control takes out of a bag it stores, and takes again as it is.
std::string play(std::string_view input)
{
    Pieces pieces(input);
    const core::ClassInfo& info = *classes().classes()[pieces.below(classes().classes().size())];
    MemoryPropertyBag bag;
    while (!pieces.isEmpty()) {
        const core::PropertyRow& row = *info.properties[pieces.below(info.properties.size())];
        bag.set(row.key.empty() ? row.name : row.key, value(pieces));
    }
    MemoryPropertyBag first;
    try {
        first = stored(info, bag);
    } catch (const RunTimeError&) {
        return {};
    }
    const MemoryPropertyBag second = stored(info, first);
    return std::ranges::equal(first.entries(), second.entries()) ? std::string() : "stored otherwise again";
}

const Registered kBag({"bag", play});

} // namespace
} // namespace zor::fuzz
