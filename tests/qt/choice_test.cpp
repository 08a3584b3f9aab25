// What only a real screen has: the wheel over a drop-down list, an open list that must close, and
// marks that must be seen.

#include <zor/controls/choice/combo_box/ctx_ZorComboBox.h>
#include <zor/controls/choice/list_box/ctx_ZorListBox.h>
#include <zor/controls/registration.h>
#include <zor/platform/qt/looks.h>
#include <zor/tests/qt/screen_fixture.h>

#include <QComboBox>
#include <QListView>
#include <QTest>
#include <QWheelEvent>

namespace zor {
namespace {

class ChoiceTest : public tests::ScreenTest {
protected:
    core::ControlPtr<ctx_ZorComboBox> makeCombo()
    {
        auto control = make<ctx_ZorComboBox>();
        for (int i = 0; i < 3; ++i)
            control->AddEnumEntry("entry", i);
        control->DeviceValue(1);
        return control;
    }
    static void turnWheel(QWidget& widget)
    {
        const QPointF at = QRectF(widget.rect()).center();
        QWheelEvent event(at, widget.mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    }
};

TEST_F(ChoiceTest, TheWheelTurnsADropDownListOnlyForWhoeverWorksIt)
{
    const auto combo = makeCombo();
    turnWheel(part(*combo));
    EXPECT_EQ(combo->OutputValue(), 1) << "without the focus";
    part(*combo).setFocus();
    turnWheel(part(*combo));
    EXPECT_EQ(combo->OutputValue(), 2);
    combo->DeviceValue(1);
    combo->CFail(true);
    turnWheel(part(*combo));
    QTest::keyClick(&part(*combo), Qt::Key_Down);
    EXPECT_EQ(combo->OutputValue(), 1) << "locked";
    EXPECT_TRUE(part(*combo).isEnabled()) << "and looks as ever";
    EXPECT_EQ(part(*combo).toolTip(), "Communication Failure !");
}

TEST_F(ChoiceTest, AFailureIsReadInEveryThemeAndState)
{
    const auto combo = makeCombo();
    combo->CFail(true);
    const QPalette before = QApplication::palette();
    for (const QColor& base : {QColor(Qt::white), QColor(35, 38, 41), QColor(Qt::black)}) {
        QPalette theme(base, base);
        theme.setColor(QPalette::Base, base);
        QApplication::setPalette(theme);
        for (const bool isModified : {false, true}) {
            combo->DataModified(isModified);
            QWidget& list = part(*combo);
            const QImage picture = list.grab().toImage();
            double worst = 21;
            // Between the text and the arrow, inside the frame.
            for (int y = 4; y < picture.height() - 4; ++y) {
                const QColor shade = picture.pixelColor(picture.width() - 40, y);
                worst = std::min(worst, platform::qt::contrast(list.palette().color(QPalette::ButtonText), shade));
            }
            EXPECT_GE(worst, 4.5) << base.name().toStdString() << isModified;
        }
    }
    QApplication::setPalette(before);
}

TEST_F(ChoiceTest, AThemeThatChangesWhileTheProgramRunsIsFollowed)
{
    core::ClassRegistry classes;
    registerControls(classes);
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(35, 38, 41), QColor(35, 38, 41));
    dark.setColor(QPalette::Base, QColor(20, 22, 24));
    const std::array entry{Variant("entry"), Variant(1)};
    std::vector<core::ControlPtr<>> controls;
    const auto picture = [&](std::size_t i) {
        QWidget& surface = platform::qt::widgetOf(controls[i]->surface());
        surface.move(static_cast<int>(i) * 5, 0);
        return surface.grab().toImage();
    };
    const auto make = [&](const core::ClassInfo& info, bool fails) {
        core::Control& control = *controls.emplace_back(info.create(container));
        control.initialiseProperties();
        control.CFail(fails);
        for (const char* name : {"AddEnumEntry", "AddBitFieldEntry"}) {
            if (const auto* add = info.method(name); add != nullptr && add->argumentCount == entry.size())
                (void)control.call(name, entry);
        }
    };
    for (const bool fails : {false, true}) {
        for (const core::ClassInfo* info : classes.classes()) {
            QApplication::setPalette(before);
            make(*info, fails);
            QApplication::processEvents();
            (void)picture(controls.size() - 1);
            QApplication::setPalette(dark);
            QApplication::processEvents();
            make(*info, fails);
            QApplication::processEvents();
            const QImage old = picture(controls.size() - 2);
            const QImage fresh = picture(controls.size() - 1);
            int worst = 0;
            for (int at = 0; at < old.width() * old.height(); ++at) {
                const QPoint pixel(at % old.width(), at / old.width());
                worst = std::max(worst, std::abs(qGray(old.pixel(pixel)) - qGray(fresh.pixel(pixel))));
            }
            EXPECT_LE(worst, 3) << info->name << fails; // a style blends edges a little differently
        }
    }
    QApplication::setPalette(before);
}

TEST_F(ChoiceTest, AnOpenListClosesWhenTheConnectionIsLost)
{
    const auto combo = makeCombo();
    auto& list = dynamic_cast<QComboBox&>(part(*combo));
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Space);
    ASSERT_TRUE(list.view()->isVisible());
    combo->CFail(true);
    EXPECT_FALSE(list.view()->isVisible());
    QTest::mouseClick(&list, Qt::LeftButton);
    EXPECT_FALSE(list.view()->isVisible());
}

TEST_F(ChoiceTest, AnEmptyMarkIsSeenOnEveryField)
{
    const auto list = make<ctx_ZorListBox>();
    list->AddBitFieldEntry(" ", 0);
    auto& view = dynamic_cast<QListView&>(part(*list));
    const auto strongest = [&] {
        QApplication::processEvents();
        const QImage picture = view.viewport()->grab().toImage();
        const QColor back = view.palette().color(QPalette::Base);
        const QRect entry = view.visualRect(view.model()->index(0, 0));
        double best = 1;
        for (int x = 0; x < entry.height(); ++x)
            best = std::max(best, platform::qt::contrast(picture.pixelColor(x, entry.center().y()), back));
        return best;
    };
    EXPECT_GE(strongest(), 2.5);
    list->DataModified(true);
    EXPECT_GE(strongest(), 2.5) << "yellow";
    list->ReadOnly(true);
    EXPECT_GE(strongest(), 2.5) << "read-only";
}

} // namespace
} // namespace zor
