#pragma once

/// How much room a control takes in a row of the generated form, and what stands beside it.

#include <zor/core/control.h>
#include <zor/monitor/data/parameter_file.h>

#include <QLabel>

namespace zor::monitor {

/// What the generated form must know of a class.
struct LooksRow {
    std::string_view name;
    int width;                  ///< the least, in pixels of the fonts that controls are designed for
    int height;                 ///< in the same; 0: as many as its list has lines
    bool tall = false;          ///< reaches over more than a line of text
    std::string_view caption{}; ///< the property that carries its own caption
};

[[nodiscard]] const LooksRow& looksOf(const core::ClassInfo& info);

/// The first size of a control: its field is as wide as all others.
void giveSize(core::Control& control);

/// A list shows the names of its bits, as far as that is possible.
void giveRoomForBits(core::Control& list, const Parameter& parameter, const std::string& language);

/// The height of a row, as far as it can be told before there are controls in it.
[[nodiscard]] int heightIn(const core::ClassInfo& info, const Parameter& parameter, const QFont& font);

/// The list that a combo box opens shows whole entries, as far as that is possible.
void giveRoomForEntries(core::Control& comboBox);

/// Of a check box or an option button; what is too long is cut and stands in the tooltip.
void setOwnCaption(core::Control& control, const QString& caption);

/// Hides a control while the device does not have its parameter. Says whether it is shown.
bool showIfHad(core::Control& control);

/// Widens or narrows a control to what it shows, so that neither a long unit nor a long caption pushes the state
/// icon over its edge.
void fitSize(core::Control& control);

/// Beside a control: the value where it has no text for it, or one that its field is too narrow for; and the unit
/// of numbers that are shown without it, because it has too few decimals for them. Of a control that
/// cannot be empty, that there is no value.
void showNote(QLabel& note, core::Control& control, const Parameter& parameter, bool known,
              const std::string& language);

/// A text that a label can break into lines of the width, however long its words are.
[[nodiscard]] QString breakable(const QString& text);

} // namespace zor::monitor
