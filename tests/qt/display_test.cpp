// What only a real screen has: the keyboard on a picture, marked text.

#include <zor/controls/display/image/ctx_ZorImage.h>
#include <zor/controls/display/label/ctx_ZorLabel.h>
#include <zor/tests/qt/screen_fixture.h>

#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace zor {
namespace {

class DisplayTest : public tests::ScreenTest {
protected:
    static QLabel& captionOf(core::Control& control) { return dynamic_cast<QLabel&>(part(control)); }
};

TEST_F(DisplayTest, ThePictureAnswersTheKeyboardAsItAnswersTheMouse)
{
    const auto image = make<ctx_ZorImage>();
    QWidget& picture = part(*image);
    EXPECT_TRUE((picture.focusPolicy() & Qt::TabFocus) != 0);
    picture.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(picture.hasFocus());
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A})
        QTest::keyClick(&picture, key);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&picture, &held);
    EXPECT_EQ(events, "imageClick imageClick imageClick");
    EXPECT_EQ(boxes.size(), 3U);

    const auto grab = [&] { return picture.grab().toImage(); };
    const QImage focused = grab();
    other.setFocus();
    EXPECT_NE(focused, grab()) << "the focus shows";
}

TEST_F(DisplayTest, ACaptionIsMarkedAndCopiedWithoutTakingAnEventOrTheFocus)
{
    const auto label = make<ctx_ZorLabel>();
    label->DeviceValue("serial 4711");
    QLabel& caption = captionOf(*label);
    events.clear();
    other.setFocus();
    QTest::mousePress(&caption, Qt::LeftButton, {}, QPoint(0, caption.height() / 2));
    const QPointF end(caption.width(), caption.height() / 2.0);
    QMouseEvent drag(QEvent::MouseMove, end, caption.mapToGlobal(end), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&caption, &drag);
    QTest::mouseRelease(&caption, Qt::LeftButton, {}, end.toPoint() - QPoint(1, 0));
    EXPECT_EQ(caption.selectedText(), "serial 4711");
    QTest::mouseClick(&caption, Qt::RightButton);
    EXPECT_EQ(events, "labelMouseDown labelMouseMove labelMouseUp labelClick labelMouseDown labelMouseUp");
    EXPECT_TRUE(other.hasFocus());
    auto* menu = caption.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    menu->actions().constFirst()->trigger();
    menu->close();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "serial 4711");

    label->DeviceValue("serial 4712");
    EXPECT_FALSE(caption.hasSelectedText());
    EXPECT_EQ(caption.focusPolicy(), Qt::NoFocus);
}

TEST_F(DisplayTest, WhateverTheDeviceSendsIsShownAsPlainText)
{
    const auto label = make<ctx_ZorLabel>();
    QLabel& caption = captionOf(*label);
    const std::string markup = "<b>fat</b> &amp; <a href='x'>y</a>";
    label->DeviceValue(markup);
    EXPECT_EQ(caption.textFormat(), Qt::PlainText);
    EXPECT_EQ(caption.text(), QString::fromStdString(markup));
    label->DeviceValue("a\xFF\xC3z");
    EXPECT_EQ(caption.text(), u"a\uFFFD\uFFFDz");
    EXPECT_EQ(label->LabelCaption(), "a\xFF\xC3z") << "nothing is lost";
    const std::string huge(10'000'000, 'x');
    label->DeviceValue(huge);
    EXPECT_LT(caption.text().size(), 5000);
    EXPECT_EQ(label->LabelCaption(), huge);

    label->MsgCfail("<h1>no</h1>");
    label->CFail(true);
    EXPECT_EQ(caption.toolTip(), "<span style=\"white-space: pre-wrap\">&lt;h1&gt;no&lt;/h1&gt;</span>");

    container.onMessage = nullptr;
    label->MessageHeader("<i>title</i>");
    QString text;
    Qt::TextFormat format = Qt::AutoText;
    QTimer::singleShot(0, [&] {
        auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        text = box->text();
        format = box->textFormat();
        box->accept();
    });
    QTest::mouseClick(&part(*label, 2), Qt::LeftButton);
    EXPECT_EQ(text, "<h1>no</h1>\r\n");
    EXPECT_EQ(format, Qt::PlainText);
}

} // namespace
} // namespace zor
