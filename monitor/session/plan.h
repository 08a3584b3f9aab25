#pragma once

/// Which registers are read together.

#include <zor/monitor/data/parameter_file.h>

#include <cstddef>
#include <optional>
#include <set>
#include <span>
#include <utility>
#include <vector>

namespace zor::monitor {

/// Neighbours in one bank, read in one request.
struct Batch {
    Bank bank;
    int first;
    int count;                           ///< registers or bits, as many as a request may have
    std::vector<std::size_t> parameters; ///< by address
};

/// An address at which a batch ends: what starts there or beyond goes into another. Found where a device refuses
/// a request, so that one register that it does not have does not take its neighbours with it.
using Cut = std::pair<Bank, int>;
using Cuts = std::set<Cut>;

/// Reads for the wanted parameters (indices, in any order). Registers that nobody wants are read along where
/// that saves a request, as many between two parameters as the device stands. A parameter is never divided.
[[nodiscard]] std::vector<Batch> plan(std::span<const Parameter> parameters, std::vector<std::size_t> wanted,
                                      const Cuts& cuts, const Requests& requests = {});

/// Where to divide a refused batch: in its widest gap, else in the middle. Nothing when its parameters all start
/// at one address.
[[nodiscard]] std::optional<Cut> cutOf(std::span<const Parameter> parameters, const Batch& batch);

} // namespace zor::monitor
