#include <zor/monitor/session/plan.h>

#include <algorithm>
#include <tuple>

namespace zor::monitor {
namespace {

int endOf(const Location& location) { return location.address + location.registers; }

} // namespace

std::vector<Batch> plan(std::span<const Parameter> parameters, std::vector<std::size_t> wanted, const Cuts& cuts,
                        const Requests& requests)
{
    constexpr int kBits = 16; // of a register: no more is transferred for nothing
    const auto place = [&](std::size_t i) {
        const Location& location = parameters[i].location;
        return std::tuple(location.bank, location.address, i);
    };
    std::ranges::sort(wanted, {}, place);
    wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
    std::vector<Batch> batches;
    for (const std::size_t i : wanted) {
        const Location& location = parameters[i].location;
        Batch* last = batches.empty() ? nullptr : &batches.back();
        const auto cutBetween = [&] {
            const auto cut = cuts.upper_bound({last->bank, last->first});
            return cut != cuts.end() && cut->first == last->bank && cut->second <= location.address;
        };
        const bool bits = holdsBits(location.bank);
        if (last != nullptr && last->bank == location.bank &&
            location.address - (last->first + last->count) <= requests.gap * (bits ? kBits : 1) &&
            endOf(location) - last->first <= (bits ? requests.bits : requests.registers) && !cutBetween()) {
            last->count = std::max(last->count, endOf(location) - last->first);
            last->parameters.push_back(i);
        } else {
            batches.push_back({location.bank, location.address, location.registers, {i}});
        }
    }
    return batches;
}

std::optional<Cut> cutOf(std::span<const Parameter> parameters, const Batch& batch)
{
    const std::size_t middle = batch.parameters.size() / 2;
    std::optional<Cut> best;
    int widest = 0;
    std::size_t nearest = batch.parameters.size();
    int end = batch.first;
    for (std::size_t i = 0; i < batch.parameters.size(); ++i) {
        const Location& location = parameters[batch.parameters[i]].location;
        const int gap = std::max(0, location.address - end);
        const std::size_t distance = i > middle ? i - middle : middle - i;
        if (location.address > batch.first && (gap > widest || (gap == widest && distance < nearest))) {
            best = Cut{batch.bank, location.address};
            widest = gap;
            nearest = distance;
        }
        end = std::max(end, endOf(location));
    }
    return best;
}

} // namespace zor::monitor
