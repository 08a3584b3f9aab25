// A form drawn in Qt Designer, opened without Qt: which controls are on it, and which parameters they show.

#include <zor/controls.h>
#include <zor/forms.h>
#include <zor/headless.h>

#include <iostream>

int main(int argc, char** argv)
{
    zor::core::ClassRegistry classes;
    zor::registerControls(classes);
    zor::platform::headless::HeadlessContainer container;
    try {
        zor::forms::Form form = zor::forms::Form::read(classes, argc > 1 ? argv[1] : "tank.ui");
        for (std::size_t i = 0; i < form.items().size(); ++i) {
            const auto& item = form.items()[i];
            const auto control = item.info->create(container);
            control->initialiseProperties();
            form.fill(i, *control);
            std::cout << item.name << ": " << item.info->name << " of " << control->DeviceTag() << '\n';
        }
        for (const std::string& note : form.notes())
            std::cerr << note << '\n';
        return form.items().empty() ? 1 : 0;
    } catch (const zor::forms::FormError& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
