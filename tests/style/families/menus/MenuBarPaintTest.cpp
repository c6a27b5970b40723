#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QMenuBar>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/IconTheme.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize pictureSize(70, 30);
constexpr QRect itemRect(5, 4, 60, 22);
constexpr QPoint corner(6, 5);

// Neither is a colour of the theme.
const QColor buttonTextColor(0x03, 0x90, 0x05);
const QColor highlightedTextColor(0x93, 0x05, 0x07);
const QColor disabledTextColor(0x73, 0x75, 0x77);

QStyleOptionMenuItem itemOption(QStyle::State state)
{
    QStyleOptionMenuItem option;
    option.rect = itemRect;
    option.state = state;
    // A bar that fills whole pixels.
    option.text = blocks(3);
    option.palette.setBrush(QPalette::ButtonText, buttonTextColor);
    option.palette.setBrush(QPalette::HighlightedText, highlightedTextColor);
    option.palette.setBrush(QPalette::Disabled, QPalette::ButtonText, disabledTextColor);
    option.palette.setBrush(QPalette::Disabled, QPalette::HighlightedText, disabledTextColor);
    return option;
}

} // namespace

/// Menu bars: their items, and what is left beside them.
class MenuBarPaintTest : public QObject
{
    Q_OBJECT

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage picture(const QStyleOptionMenuItem &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(QStyle::CE_MenuBarItem, option, widget, pictureSize);
    }

private Q_SLOTS:
    void states_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("fill");
        QTest::addColumn<QColor>("foreground");
        const int enabled = QStyle::State_Enabled;
        const int selected = QStyle::State_Selected;
        const int hovered = QStyle::State_MouseOver;
        QTest::newRow("rest") << enabled << text("BackgroundSubLevel2Brush") << buttonTextColor;
        QTest::newRow("selected") << (enabled | selected) << text("MainColor")
                                  << highlightedTextColor;
        QTest::newRow("hovered") << (enabled | hovered) << text("MainColor")
                                 << highlightedTextColor;
        QTest::newRow("open") << int(enabled | selected | QStyle::State_Sunken) << text("MainColor")
                              << highlightedTextColor;
        // A disabled item lies on the same bar as the others.
        QTest::newRow("disabled") << 0 << text("BackgroundSubLevel2Brush") << disabledTextColor;
        QTest::newRow("disabled, selected")
            << selected << text("MainColorDisabled") << disabledTextColor;
    }

    void states()
    {
        QFETCH(int, state);
        QFETCH(QString, fill);
        QFETCH(QColor, foreground);
        const QMenuBar bar;
        QStyleOptionMenuItem option = itemOption(QStyle::State(state));
        const QImage withText = picture(option, &bar);
        QCOMPARE(m_theme.nameAt(withText, corner), fill);
        QCOMPARE(m_theme.nameAt(withText, itemRect.bottomRight()), fill);
        QVERIFY(m_theme.nameAt(withText, itemRect.topLeft() - QPoint(1, 1)).isEmpty());
        QVERIFY(containsColor(withText, foreground));

        QPixmap pixmap(16, 16);
        pixmap.fill(referenceForeground);
        option.icon = QIcon(pixmap);
        const QImage withIcon = picture(option, &bar);
        QCOMPARE(m_theme.nameAt(withIcon, corner), fill);
        QCOMPARE(withIcon.pixelColor(itemRect.center()), foreground);
    }

    void disabledBar()
    {
        QMenuBar bar;
        bar.setEnabled(false);
        QCOMPARE(m_theme.nameAt(picture(itemOption({}), &bar), corner),
                 text("BackgroundSubLevel2BrushDisabled"));
    }

    void withoutWidget()
    {
        QCOMPARE(m_theme.nameAt(picture(itemOption(QStyle::State_Enabled)), corner),
                 text("BackgroundSubLevel2Brush"));
        QCOMPARE(m_theme.nameAt(picture(itemOption({})), corner),
                 text("BackgroundSubLevel2BrushDisabled"));
    }

    void textReachesTheProxy()
    {
        picture(itemOption(QStyle::State_Enabled));
        QCOMPARE(m_recorder.elements(), QStringList{text("drawItemText")});
        QCOMPARE(m_recorder.call("drawItemText").rect, itemRect);
    }

    void otherOptions()
    {
        QStyleOptionButton option;
        option.rect = itemRect;
        option.state = QStyle::State_Enabled | QStyle::State_Selected;
        const QImage other =
            m_recorder.picture(QStyle::CE_MenuBarItem, option, nullptr, pictureSize);
        QCOMPARE(m_theme.namesIn(other), QStringList());
    }

    void emptyArea()
    {
        QStyleOption option;
        option.rect = itemRect;
        option.state = QStyle::State_Enabled;
        const QImage enabled =
            m_recorder.picture(QStyle::CE_MenuBarEmptyArea, option, nullptr, pictureSize);
        QCOMPARE(m_theme.namesIn(enabled), QStringList{text("BackgroundSubLevel2Brush")});
        QCOMPARE(m_theme.nameAt(enabled, itemRect.bottomRight()), text("BackgroundSubLevel2Brush"));
        QMenuBar bar;
        bar.setEnabled(false);
        const QImage disabled =
            m_recorder.picture(QStyle::CE_MenuBarEmptyArea, option, &bar, pictureSize);
        QCOMPARE(m_theme.namesIn(disabled), QStringList{text("BackgroundSubLevel2BrushDisabled")});
    }
};

QTEST_MAIN(MenuBarPaintTest)
#include "MenuBarPaintTest.moc"
