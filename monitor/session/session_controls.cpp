// A session's controls: those that it has, and those that a form will make when they are needed.

#include <zor/monitor/session/session.h>
#include <zor/platform/error.h>

#include <algorithm>
#include <utility>

namespace zor::monitor {

void Session::bind(core::Control& control)
{
    const auto index = m_indexOf(control.DeviceTag());
    auto binding = std::make_unique<Binding>(control, index ? &m_file.parameters[*index] : nullptr);
    binding->applyFile();
    binding->refresh(m_language);
    binding->texts().apply();
    binding->onEdit = [this] {
        if (onEdit)
            onEdit();
    };
    if (binding->isChoice()) {
        Binding* chooser = binding.get();
        chooser->onChosen = [this, chooser](const Variant& value) { chosen(*chooser, value); };
    }
    m_views.push_back({binding->outputUnit()});
    m_bindings.push_back(std::move(binding));
    if (m_isKnown) {
        control.DeviceType(m_type);
        control.DeviceVersion(m_version);
    }
    if (index) {
        m_shownBy[*index].push_back(m_bindings.back().get());
        catchUp(*m_bindings.back(), *index);
    }
}

void Session::catchUp(Binding& binding, std::size_t parameter)
{
    const MEAS_TYPE unit = unitInForce(m_file.parameters[parameter], m_views.back().formUnit);
    if (unit != m_views.back().formUnit)
        showIn(binding, unit);
    const State& state = m_states[parameter];
    if (!state.last.empty())
        binding.showValue(state.last, m_language);
    if (state.readAt >= 0)
        binding.showOutcome(state.outcome);
    if (!m_healthy && m_failedRounds > 0)
        binding.showOutcome(ReadOutcome::NoAnswer);
}

const core::ClassInfo* Session::classToCome(std::size_t parameter) const
{
    return m_shownBy[parameter].empty() && foreseen ? foreseen(parameter) : nullptr;
}

Binding* Session::reach(std::size_t parameter)
{
    if (classToCome(parameter) != nullptr)
        make(parameter);
    return m_shownBy[parameter].empty() ? nullptr : m_shownBy[parameter].front();
}

std::set<std::size_t> Session::editable() const
{
    std::set<std::size_t> parameters;
    for (std::size_t i = 0; i < m_states.size(); ++i) {
        const Parameter& parameter = m_file.parameters[i];
        const auto canEdit = [](const Binding* binding) {
            return binding->has("ModifiedValue") && binding->isSupported();
        };
        const core::ClassInfo* info = classToCome(i);
        const bool toCome = info != nullptr && info->property("ModifiedValue") != nullptr &&
                            isSupported(parameter.appearance.supported, m_type, m_version);
        if (parameter.writable && (toCome || std::ranges::any_of(m_shownBy[i], canEdit)))
            parameters.insert(i);
    }
    return parameters;
}

bool Session::propose(std::size_t parameter, const Registers& registers)
{
    bool taken = false;
    reach(parameter);
    forEach(parameter, [&](Binding& binding) { taken = binding.propose(registers) || taken; });
    return taken;
}

void Session::chosen(Binding& binding, const Variant& value)
{
    const auto parameter = static_cast<std::size_t>(binding.parameter() - m_file.parameters.data());
    forEach(parameter, [&](Binding& other) {
        if (&other != &binding && other.isChoice())
            other.follow(value);
    });
}

// --- How values are shown

void Session::setLanguage(const std::string& language)
{
    m_language = language;
    for (std::size_t i = 0; i < m_bindings.size(); ++i) {
        m_bindings[i]->refresh(language);
        m_bindings[i]->texts().apply();
    }
}

void Session::setUnits(UnitSystem system)
{
    m_units = system;
    m_unitOf.clear();
    for (std::size_t i = 0; i < m_bindings.size(); ++i) {
        Binding& binding = *m_bindings[i];
        if (binding.parameter() != nullptr)
            showIn(binding, unitInForce(*binding.parameter(), m_views[i].formUnit));
    }
}

bool Session::setUnit(UNIT_TYPE type, MEAS_TYPE unit)
{
    m_unitOf[type] = unit;
    bool shown = true;
    for (const auto& binding : m_bindings) {
        if (binding->parameter() != nullptr && binding->parameter()->unitType == type)
            shown = showIn(*binding, unit) && shown;
    }
    return shown;
}

bool Session::showIn(Binding& binding, MEAS_TYPE unit)
{
    try {
        binding.showIn(unit, m_language);
    } catch (const RunTimeError&) {
        return false;
    }
    binding.texts().applyUnitLabel();
    return true;
}

MEAS_TYPE Session::unitInForce(const Parameter& parameter, MEAS_TYPE formUnit) const
{
    const auto own = m_unitOf.find(parameter.unitType);
    return own != m_unitOf.end() ? own->second : unitIn(m_units, formUnit, parameter.unit);
}

std::set<UNIT_TYPE> Session::unitTypes() const
{
    std::set<UNIT_TYPE> types;
    for (std::size_t i = 0; i < m_states.size(); ++i) {
        const core::ClassInfo* info = classToCome(i);
        bool chooses = info != nullptr && info->property("OutputUnit") != nullptr;
        forEach(i, [&](const Binding& binding) { chooses = chooses || binding.has("OutputUnit"); });
        if (chooses)
            types.insert(m_file.parameters[i].unitType);
    }
    return types;
}

MEAS_TYPE Session::shownUnit(std::size_t parameter) const
{
    if (!m_shownBy[parameter].empty())
        return m_shownBy[parameter].back()->shownUnit();
    const Parameter& row = m_file.parameters[parameter];
    const core::ClassInfo* info = classToCome(parameter);
    const MEAS_TYPE unit = unitInForce(row, info != nullptr ? formUnit(row, *info) : row.appearance.unit);
    return unit == NoneU ? row.unit : unit;
}

} // namespace zor::monitor
