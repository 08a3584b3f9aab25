// Forms of Qt Designer, opened and saved.

#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>

#include <algorithm>

namespace zor::console {
namespace {

/// A file's name stands in quotes, or bare.
std::string fileNamed(std::string_view word)
{
    return word.starts_with('"') ? parseValue(word).text() : std::string(word);
}

} // namespace

void place(core::Control& control, const platform::Rect& area)
{
    const platform::Hold hold(control);
    control.surface().setGeometry(area);
    control.resized();
}

void openForm(Session& session, const Call& call)
{
    forms::Form form = forms::Form::read(session.classes(), fileNamed(call[0]));
    const std::vector<forms::Form::Item> items(form.items().begin(), form.items().end());
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (!session.isFree(items[i].name)) {
            form.note(items[i].line, items[i].name + ": the name is not free");
            continue;
        }
        session.create(*items[i].info, items[i].name, [&](core::Control& control) {
            control.initialiseProperties();
            if (items[i].place)
                place(control, *items[i].place);
            form.fill(i, control);
        });
    }
    for (const std::string& note : form.notes())
        session.print(note);
    session.setForm(std::move(form));
}

void saveForm(Session& session, const Call& call)
{
    forms::Form& form = session.form();
    form.keepOnly([&](const forms::Form::Item& item) {
        const auto object = session.objects().find(item.name);
        return !item.isTaken ||
               (object != session.objects().end() && &object->second.control->info() == item.info);
    });
    std::vector<const Session::Objects::value_type*> objects;
    for (const auto& object : session.objects())
        objects.push_back(&object);
    std::ranges::sort(objects, {}, [](const auto* object) { return object->second.number; });
    for (const auto* object : objects)
        form.store(object->first, *object->second.control, session.stage().container());
    form.write(fileNamed(call[0]));
}

} // namespace zor::console
