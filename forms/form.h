#pragma once

/// Forms drawn in Qt Designer (.ui), without Qt.
///
/// A form sets the properties of new controls: what it does not name has the value of a fresh control. Everything
/// in the file that is no control's (other widgets, layouts, connections) is kept as it stands and written again.

#include <zor/core/class_info.h>
#include <zor/platform/widgets.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zor::forms {

/// A form file: its controls, and all else as it stands.
class Form {
public:
    /// A control on the form.
    struct Item {
        /// Its class.
        const core::ClassInfo* info = nullptr;
        /// Its object name.
        std::string name;
        /// Where the form puts it, in twips of its parent; nothing where a layout does.
        std::optional<platform::Rect> place;
        /// Where it begins in the file.
        std::size_t line = 0;
        /// A control on the form was filled from it, or stored under its name.
        bool isTaken = false;
    };

    /// An empty form. The registry must outlive it.
    explicit Form(const core::ClassRegistry& registry);
    /// Reads a file or a text. Raises FormError, with file and line, for what is no form.
    [[nodiscard]] static Form read(const core::ClassRegistry& registry, const std::filesystem::path& file);
    /// As read(), from a text; the name stands in errors and notes.
    [[nodiscard]] static Form parse(const core::ClassRegistry& registry, std::string_view text, std::string name);
    /// The other may be assigned to and destroyed afterwards, and nothing else.
    Form(Form&&) noexcept;
    /// The other may be assigned to and destroyed afterwards, and nothing else.
    Form& operator=(Form&&) noexcept;
    ~Form();

    /// The controls, in the order of the file. A file may give two the same name: who finds them by it sees to
    /// that. Good until the next store() or keepOnly().
    [[nodiscard]] std::span<const Item> items() const noexcept;
    /// Sets what the form says on a fresh control of the item's class, already in its place, in the order of the
    /// file. Raises SubscriptOutOfRange for an item that there is not.
    void fill(std::size_t item, core::Control& control);
    /// What could not be taken over so far, a line each, beginning with file and line. Good until the next one.
    [[nodiscard]] std::span<const std::string> notes() const noexcept;
    /// Adds a note.
    void note(std::size_t line, std::string_view text);

    /// Takes a control's stored properties and place into the form, under a name that is new or an item's. Only
    /// what has changed since fill() or the last store() is touched. In the container a control is made for a
    /// moment, to see what the form's own settings come to. An item of another class keeps its name beside it:
    /// names are for the caller to keep apart. Raises FormError for a form without a widget that a control could
    /// lie on.
    void store(std::string_view name, core::Control& control, platform::Container& container);
    /// Takes the items out for which `keep` says no.
    void keepOnly(const std::function<bool(const Item&)>& keep);

    /// The file as it would be written.
    [[nodiscard]] std::string text() const;
    /// Writes the file, whole or not at all: under a new name beside it first. Of a link, what it leads to. Raises
    /// FormError.
    void write(const std::filesystem::path& file) const;

private:
    struct Document;
    explicit Form(std::unique_ptr<Document> document) noexcept;

    std::unique_ptr<Document> m_document;
};

} // namespace zor::forms
