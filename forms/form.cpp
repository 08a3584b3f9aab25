#include <zor/core/control.h>
#include <zor/forms/document.h>
#include <zor/forms/form.h>
#include <zor/forms/form_error.h>
#include <zor/forms/markup.h>
#include <zor/forms/values.h>
#include <zor/forms/xml_check.h>
#include <zor/platform/error.h>

#include <array>
#include <fstream>
#include <system_error>

namespace zor::forms {
namespace {

using std::string;
using std::string_view;

constexpr const char* kBlankForm = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Form</class>
 <widget class="QWidget" name="Form">
  <property name="geometry">
   <rect>
    <x>0</x>
    <y>0</y>
    <width>640</width>
    <height>480</height>
   </rect>
  </property>
 </widget>
 <resources/>
 <connections/>
</ui>
)";

string readWhole(const std::filesystem::path& file)
{
    std::error_code failure;
    if (std::filesystem::is_directory(file, failure))
        throw FormError(file.string(), 0, "is a folder");
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw FormError(file.string(), 0, "cannot be read");
    string text;
    std::array<char, 65536> block{};
    // One byte too many is enough to know; a pipe may never end.
    while (in && text.size() <= kMostBytes) {
        in.read(block.data(), block.size());
        text.append(block.data(), static_cast<std::size_t>(in.gcount()));
    }
    if (in.bad())
        throw FormError(file.string(), 0, "cannot be read to its end");
    return text;
}

} // namespace

Form::Form(std::unique_ptr<Document> document) noexcept : m_document(std::move(document)) {}
Form::Form(const core::ClassRegistry& registry) : Form(parse(registry, kBlankForm, {})) {}
Form::Form(Form&&) noexcept = default;
Form& Form::operator=(Form&&) noexcept = default;
Form::~Form() = default;

Form Form::read(const core::ClassRegistry& registry, const std::filesystem::path& file)
{
    return parse(registry, readWhole(file), file.string());
}

Form Form::parse(const core::ClassRegistry& registry, string_view text, string name)
{
    return Form(std::make_unique<Document>(registry, text, std::move(name)));
}

std::span<const Form::Item> Form::items() const noexcept { return m_document->items; }
std::span<const string> Form::notes() const noexcept { return m_document->notes; }
void Form::note(std::size_t line, string_view text) { m_document->note(line, text); }

// --- Into a control

void Form::fill(std::size_t item, core::Control& control)
{
    Document& document = *m_document;
    if (item >= document.items.size())
        raiseError(ErrorNumber::SubscriptOutOfRange);
    const platform::Hold hold(control);
    for (const pugi::xml_node& property : document.elements[item].children("property")) {
        const string name = attributeOf(property, "name");
        const string wrong = setProperty(control, property, name);
        if (!wrong.empty())
            document.note(document.line(property),
                          string(document.items[item].name).append(".").append(name).append(": ").append(wrong));
    }
    document.shown[item] = storedValues(control);
    document.placed[item] = control.surface().geometry();
    document.items[item].isTaken = true;
}

} // namespace zor::forms
