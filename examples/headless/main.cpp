// A host program without a display and without Qt: a device's level in, what the operator made of it out.

#include <zor/controls.h>
#include <zor/headless.h>
#include <zor/version.h>

#include <iostream>

namespace {

/// Hears of the control's events; the host writes to the device from here, and only what the operator made.
class Level final : public zor::__ctx_ZorTextBox {
public:
    explicit Level(zor::ctx_ZorTextBox& control) : m_commits(control) {}
    void OutputValueChange() override
    {
        if (const auto value = m_commits.take())
            written = value->toDouble();
    }

    double written = 0;

private:
    zor::core::CommitFilter m_commits;
};

} // namespace

int main()
{
    zor::platform::headless::HeadlessContainer form;
    const auto level = zor::ctx_ZorTextBox::create(form);
    level->initialiseProperties();
    form.setUserMode(true);
    Level sink(*level);
    level->subscribe(sink);

    level->OutputUnit(zor::LgthU_Mtr);  // what the operator reads and types
    level->DefaultUnit(zor::LgthU_Mtr); // the unit of the limits
    level->MaxValue(20);
    level->DeviceValue(12345); // what the device sent, in tenths of a millimetre

    auto* field = dynamic_cast<zor::platform::TextField*>(level->widget(zor::ctx_ZorTextBox::txt_TextBox));
    if (field == nullptr)
        return 1;
    std::cout << "ZorSmartControls " << zor::version() << " shows " << field->text() << " m\n";
    zor::platform::headless::HeadlessOperator hands(form);
    hands.select(*field, 0, field->text().size());
    hands.type(*field, "1.5");
    hands.blur(*field);
    std::cout << "the operator wants " << sink.written << " in the device's unit\n";
    level->unsubscribe(sink);
    return sink.written == 15000 ? 0 : 1;
}
