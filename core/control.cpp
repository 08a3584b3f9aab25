#include <zor/core/control.h>
#include <zor/core/shared_rows.h>
#include <zor/platform/error.h>
#include <zor/platform/text.h>
#include <zor/units/mod_Common.h>

#include <algorithm>
#include <cassert>
#include <cmath>

namespace zor::core {

void ControlDeleter::operator()(Control* control) const noexcept
{
    control->m_sinks.each([control](const SinkList::Entry& entry) {
        if (entry.generic != nullptr)
            entry.generic->ended(*control);
    });
    if (control->m_holds == 0)
        delete control;
    else
        control->m_ended = true;
}

Control::Control(const ClassInfo& info, platform::Container& container, platform::Twips width,
                 platform::Twips height)
    : m_info(info), m_container(container), m_surface(container.createSurface(*this, width, height))
{}

Control::~Control()
{
    // Nobody who is in the middle of something is left without it.
    assert(m_holds == 0 && m_actions.isNone() && m_widgetWrites.isNone());
}

// --- By name

namespace {

/// What does not fit a property, as an error shows it: a text in quotation marks, cut where nobody reads on.
std::string handed(ErrorNumber number, const Variant& value)
{
    if (number != ErrorNumber::TypeMismatch && number != ErrorNumber::Overflow)
        return {};
    if (value.isNumber() && !std::isfinite(value.number()))
        return "no finite number";
    constexpr std::size_t kMost = 40;
    const std::string text = platform::validUtf8(value.toText());
    std::string shown = text.substr(0, platform::byteOffset(text, kMost));
    std::ranges::replace_if(
        shown, [](unsigned char byte) { return byte < ' '; }, ' ');
    shown += shown.size() < text.size() ? "..." : "";
    return value.isText() ? "\"" + shown + "\"" : shown;
}

/// As `naming`, for a value that may not fit.
template <class Action>
void namingWritten(std::string_view object, std::string_view member, const Variant& value, Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        if (error.namesMember())
            throw;
        throw error.of(object, member, handed(error.number(), value));
    }
}

/// A value as a bag has it: published with 32 bits, some are stored with 16. Raises Overflow.
Variant storable(ValueKind kind, const Variant& value)
{
    const bool isShort =
        kind == ValueKind::UnitType || kind == ValueKind::MeasType || kind == ValueKind::RegisterType;
    return isShort ? Variant(value.toInt16()) : value;
}

template <class Row>
const Row& found(const Row* row)
{
    if (row == nullptr)
        raiseError(ErrorNumber::NoSuchMember);
    return *row;
}

} // namespace

Variant Control::property(std::string_view name) const
{
    return naming(m_info.name, name, [&] { return read(found(m_info.property(name))); });
}

void Control::setProperty(std::string_view name, const Variant& value)
{
    namingWritten(m_info.name, name, value, [&] { assign(found(m_info.property(name)), value); });
}

MethodResult Control::call(std::string_view method, std::span<const Variant> arguments)
{
    return naming(m_info.name, method, [&] {
        const MethodRow& row = found(m_info.method(method));
        if (row.argumentCount != arguments.size())
            raiseError(ErrorNumber::WrongArguments);
        MethodResult result;
        carryOut([&] { result = row.call(*this, arguments); });
        return result;
    });
}

const PropertyRow& Control::own(const PropertyRow& row) const
{
    if (std::ranges::find(m_info.properties, &row) == m_info.properties.end())
        raiseError(ErrorNumber::NoSuchMember);
    return row;
}

Variant Control::get(const PropertyRow& row) const
{
    return naming(m_info.name, row.name, [&] { return read(own(row)); });
}

void Control::put(const PropertyRow& row, const Variant& value)
{
    namingWritten(m_info.name, row.name, value, [&] { assign(own(row), value); });
}

Variant Control::read(const PropertyRow& row) const
{
    // A row finds its field for reading and for writing alike; here it is only read.
    auto& control = const_cast<Control&>(*this);
    if (row.get != nullptr)
        return row.get(control);
    if (row.field.at == nullptr)
        raiseError(ErrorNumber::NoSuchMember);
    return valueOf(row.field.at(control));
}

void Control::assign(const PropertyRow& row, const Variant& value)
{
    if (refusesWrite(row))
        return;
    if (row.put != nullptr) {
        carryOut([&] { row.put(*this, value); });
        return;
    }
    assert(row.field.at != nullptr); // what has neither is read-only, and refused above
    std::visit(
        [&](auto* field) {
            write(row, *field, detail::convertTo<detail::Taken<std::remove_pointer_t<decltype(field)>>>(value));
        },
        row.field.at(*this));
}

bool Control::refusesWrite(const PropertyRow& row) const
{
    if (row.access == Access::ReadOnly || (row.access == Access::Derived && m_container.userMode()))
        raiseError(ErrorNumber::ReadOnly);
    return row.access == Access::Derived;
}

void Control::stored(const PropertyRow& row)
{
    if (row.access != Access::Silent && !m_ended)
        m_container.propertyChanged(*this, row.name);
    for (const Refresh step : refreshesOf(row))
        refresh(step);
    if (row.after != nullptr)
        row.after(*this);
}

const Refreshes& Control::refreshesOf(const PropertyRow& row) const noexcept
{
    for (const EffectRow& effect : m_info.effects) {
        if (effect.property == &row)
            return effect.refreshes;
    }
    return row.refreshes;
}

void Control::refresh(Refresh refresh)
{
    switch (refresh) {
    case Refresh::Status:
        m_isDefaultShown = false;
        s_UpdateStatusDisplay();
        break;
    case Refresh::Colours: s_UpdateColors(); break;
    case Refresh::Enabled: s_UpdateEnabledState(); break;
    case Refresh::Support: s_UpdateDeviceSupportDisplay(); break;
    case Refresh::CheckType: s_CheckDeviceType(); break;
    case Refresh::CheckVersion: s_CheckDeviceVersion(); break;
    }
}

// --- Shared refreshes

void Control::s_CheckDeviceType()
{
    m_binding.typeIndex = fi_GetDeviceTypeIndex(m_binding.typesSupported, m_binding.deviceType);
    m_status.deviceTypeNotSupported = m_binding.typeIndex == -1;
    s_UpdateDeviceSupportDisplay();
}

void Control::s_CheckDeviceVersion()
{
    // Without a type the lists have no entry to compare with: the last answer stands.
    if (m_binding.typeIndex != -1)
        m_status.deviceVerNotSupported = fb_VersionNotSupported(m_binding.minVersions, m_binding.maxVersions,
                                                                m_binding.deviceVersion, m_binding.typeIndex);
    s_UpdateDeviceSupportDisplay();
}

void Control::s_UpdateEnabledState()
{
    const bool waiting = m_status.waitingForData;
    const bool locked = m_status.deviceTagNotFound || !m_status.enableControl;
    for (platform::Widget* widget : body())
        widget->setEnabled(!waiting && !locked);
    // An unknown identifier must stay explainable, so only waiting takes the icon away from the operator.
    icon().setEnabled(!waiting);
}

void Control::s_UpdateStatusDisplay()
{
    if (!isDeviceSupported())
        return;
    // With every value, and nearly always there is no state to show: then nothing is to be done.
    const StatusRow* state = shownState();
    if (state != nullptr || !m_isDefaultShown)
        showState(state);
}

void Control::showState(const StatusRow* state)
{
    if (state == nullptr) {
        body().front()->setToolTip(m_messages.defaultText.text());
        icon().setVisible(false);
        m_isDefaultShown = true;
    } else {
        m_isDefaultShown = false;
        std::string tip;
        if (m_info.subject == nullptr)
            state->toolTip(*this, tip);
        body().front()->setToolTip(m_info.subject == nullptr ? tip : m_info.subject(*this));
        icon().setPicture(state->picture);
        if (m_status.iconEnable)
            icon().setVisible(true);
    }
}

const StatusRow* Control::shownState() const
{
    for (const StatusRow& state : m_info.states) {
        if (state.applies(*this))
            return &state;
    }
    return nullptr;
}

platform::Spoken Control::spoken(int number)
{
    platform::Spoken spoken;
    spoken.name = m_info.subject == nullptr ? m_binding.deviceTag : m_info.subject(*this);
    if (const StatusRow* state = shownState())
        state->toolTip(*this, spoken.state);
    if (widget(number) != body().front())
        return spoken;
    spoken.isEdited = m_status.dataModified;
    spoken.isBusy = m_status.waitingForData;
    if (m_info.property(SharedRows::DataModified.name) != nullptr) {
        spoken.isReadOnly = isReadOnlyForOperator();
        spoken.isLocked = m_status.cFail || spoken.isReadOnly;
    }
    describe(spoken);
    return spoken;
}

void Control::s_ExplainState()
{
    const auto state = std::ranges::find_if(
        m_info.states, [this](const StatusRow& row) { return row.boxText != nullptr && row.applies(*this); });
    if (state == m_info.states.end())
        return;
    std::string text;
    state->boxText(*this, text);
    const std::string title = m_info.boxTitle != nullptr ? m_info.boxTitle(*this) : m_messages.header.text();
    m_container.showMessage(*this, {state->boxIcon, title, text});
    if (state->acknowledged) {
        m_status.dataChanged = false;
        s_UpdateStatusDisplay();
    }
}

void Control::s_ChangeBackColor(Colour l_ColorValue) { m_surface->setBackColour(l_ColorValue); }

// --- Messages

std::int16_t Control::fi_GetMaxMessage() const noexcept
{
    return static_cast<std::int16_t>(m_info.messages.size());
}

std::string_view Control::fc_GetMessageID(std::int16_t i_MessageNumber) const noexcept
{
    if (i_MessageNumber < 1 || i_MessageNumber > fi_GetMaxMessage())
        return m_info.otherMessage;
    return m_info.messages[static_cast<std::size_t>(i_MessageNumber - 1)].identifier;
}

bool Control::fb_SetMessage(std::int16_t i_MessageNumber, std::string_view c_MessageString)
{
    if (i_MessageNumber < 1 || i_MessageNumber > fi_GetMaxMessage())
        return false;
    const MessageRow& row = m_info.messages[static_cast<std::size_t>(i_MessageNumber - 1)];
    storeInto(row.property->field.at(*this), c_MessageString);
    m_isDefaultShown = false;
    return true;
}

platform::Widget* Control::widget(int number) noexcept
{
    return number == platform::kSurfaceWidget ? m_surface.get() : nullptr;
}

// --- The container's side

void Control::initialiseProperties()
{
    carryOut([this] {
        for (const PropertyRow* row : m_info.initialOrder) {
            if (row->access != Access::Derived)
                initialise(*row);
        }
    });
}

void Control::initialise(const PropertyRow& row)
{
    const bool isDefault = std::holds_alternative<std::monostate>(row.initial);
    const Literal& value = isDefault ? row.bagDefault : row.initial;
    if (row.put != nullptr) {
        row.put(*this, toVariant(value));
        return;
    }
    // A row's constant is of the property's type: nothing is to be converted.
    std::visit(
        [&](auto* field) {
            write(row, *field, detail::constantOf<std::remove_pointer_t<decltype(field)>>(value));
        },
        row.field.at(*this));
}

void Control::load(const PropertyRow& row, const platform::PropertyBag& bag)
{
    Variant value;
    namingWritten(m_info.name, row.key, value, [&] {
        value = bag.ReadProperty(row.key, toVariant(row.bagDefault));
        if (row.field.at == nullptr)
            return row.put(*this, value);
        storeInto(row.field.at(*this), storable(row.field.kind, value));
    });
}

void Control::readProperties(const platform::PropertyBag& bag)
{
    carryOut([&] {
        m_isDefaultShown = false;
        for (const PropertyRow* row : m_info.readOrder.empty() ? m_info.properties : m_info.readOrder) {
            if (!row->key.empty())
                load(*row, bag);
        }
        s_AfterLoading();
    });
}

void Control::writeProperties(platform::PropertyBag& bag)
{
    // What could not be read again would take all that is stored with it: nothing is stored then.
    std::vector<std::pair<const PropertyRow*, Variant>> values;
    for (const PropertyRow* row : m_info.properties) {
        if (row->key.empty())
            continue;
        const Variant& value =
            values.emplace_back(row, row->storesField ? valueOf(row->field.at(*this)) : read(*row)).second;
        namingWritten(m_info.name, row->name, value, [&] { static_cast<void>(storable(row->field.kind, value)); });
    }
    // No property is Empty, so nothing equals that default.
    for (const auto& [row, value] : values)
        bag.WriteProperty(row->key, value, row->isAlwaysStored ? Variant() : toVariant(row->bagDefault));
}

void Control::resized()
{
    carryOut([this] { s_Layout(); });
}

} // namespace zor::core
