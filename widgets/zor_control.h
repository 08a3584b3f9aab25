#pragma once

/// What the ready-made QWidgets share. The widgets themselves are generated from the controls' tables, see
/// zor/widgets/zor_widgets.h.

#include <zor/platform/notice.h>
#include <zor/platform/variant.h>
#include <zor/widgets/zor_enumerations.h>

#include <QVariant>

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>

namespace zor::core {
class Control;
struct ClassInfo;
} // namespace zor::core

namespace zor {

/// A control as a QWidget: properties as Qt properties, methods invokable, events as signals.
///
/// Writing a property through Qt never throws: what the control refuses (a number that does not fit, a derived
/// property in user mode) changes nothing and is announced by `refused`. So is the error of a sink that threw in
/// an event of the write, which stands then. A value that Qt cannot convert to the property's type does not reach
/// the control: setProperty() returns false, and `refused` is not emitted. A signal carries its arguments by
/// value; to change one (to swallow a key, say) subscribe the control's sink interface to control().
///
/// The widget's size is the control's: 15 twips to the device-independent pixel, fewer in a font whose lines are
/// higher than 16 pixels, so that all of the control grows with its font. In a style sheet a class goes by the
/// name zor--ZorTextBox. A widget starts in user mode.
///
/// The first widget takes the decimal and grouping separators of the default QLocale; see
/// platform::setRegionalSettings() for others.
class ZorControl : public ZorWidget {
    Q_OBJECT
    /// For data mappers and item views, in the device's unit: written, the value from the device; read, what the
    /// operator has made of it, a valid entry under way included, or the device's own value while nobody has
    /// edited.
    Q_PROPERTY(
        QVariant value READ value WRITE setValue NOTIFY valueChanged DESIGNABLE false STORED false USER true)

public:
    ~ZorControl() override;

    /// The control itself, with everything that the library offers.
    [[nodiscard]] core::Control& control() const noexcept;
    /// The tables of the control's class.
    [[nodiscard]] const core::ClassInfo& info() const noexcept;

    /// Whether the program runs (true) or a form is being designed.
    [[nodiscard]] bool isUserMode() const noexcept;
    void setUserMode(bool userMode);

    /// A valid entry under way, else OutputValue where there is an edit, else the device's value as it was written
    /// (DeviceValue, but for a slider, which reads that times its ScaleFactor).
    [[nodiscard]] QVariant value() const;
    /// Writes DeviceValue.
    void setValue(const QVariant& value);

    /// The size in which the control was designed, in the widget's font.
    [[nodiscard]] QSize sizeHint() const override;
    /// As sizeHint().
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    /// While the device does not offer the parameter, a control in user mode is hidden as any hidden widget is: a
    /// layout closes the gap. What the program asks for meanwhile counts once the device offers it.
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The value handed over is another, or has been handed over again; by whomever.
    void valueChanged();
    /// The operator has handed over a value, in the device's unit: the one to write to the device. Nothing that
    /// the program writes raises it, and neither does an operator who passes through a field. A slider that is
    /// being dragged hands over where it is let go.
    void valueCommitted(const QVariant& value);
    /// A property was written, or changed together with another.
    void propertyChanged(const QString& name);
    /// A property write or a method call came to nothing, or a sink threw in one of its events: name, error number
    /// and a short text.
    void refused(const QString& member, int error, const QString& text);

protected:
    ZorControl(std::string_view className, QWidget* parent);

    /// @name For the generated classes
    /// @{
    [[nodiscard]] Variant readProperty(std::size_t row) const;
    void writeProperty(std::size_t row, const Variant& value);
    /// What is no value of a control is refused as another type.
    void writeProperty(std::size_t row, const QVariant& value);
    /// The result of a method; Empty for none, and after an error.
    Variant callMethod(std::size_t row, std::initializer_list<Variant> arguments);
    [[nodiscard]] QVariantList callForArray(std::size_t row, std::initializer_list<Variant> arguments);
    /// Emits the signal of an event, by its position in the class's table.
    virtual void emitEvent(std::size_t event, platform::EventArgs arguments) = 0;
    /// @}

    void connectNotify(const QMetaMethod& signal) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Inner;
    class Leaving;

    template <class Action>
    void guarded(std::string_view member, Action&& action) const;
    void layOut();
    void followFont();
    void takeFocusProxy();
    void followFace();
    /// A list grows with the form; everything else has the height of a line.
    [[nodiscard]] bool hasList() const;

    std::unique_ptr<Inner> m_inner;
};

/// One of the widgets, for programs that create them by name.
struct WidgetClass {
    /// The C++ name, as it stands in form files ("zor::ZorTextBox").
    std::string_view name;
    /// The control's class ("ctx_ZorTextBox").
    std::string_view controlClass;
    /// Makes one, in user mode.
    ZorControl* (*create)(QWidget* parent);
};

/// All widgets of the library.
[[nodiscard]] std::span<const WidgetClass> widgetClasses() noexcept;

} // namespace zor
