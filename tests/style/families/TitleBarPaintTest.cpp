#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/IconTheme.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(QStyle::SubControl)

namespace {

constexpr QSize size(200, 24);

const Qt::WindowFlags usualFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                   Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;

QStyleOptionTitleBar titleBar(bool isActive, Qt::WindowFlags flags = usualFlags,
                              Qt::WindowStates windowState = Qt::WindowNoState)
{
    QStyleOptionTitleBar option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    option.state.setFlag(QStyle::State_Active, isActive);
    option.titleBarState = int(windowState) | (isActive ? int(QStyle::State_Active) : 0);
    option.titleBarFlags = flags;
    option.subControls = QStyle::SC_All;
    option.palette.setColor(QPalette::WindowText, Qt::red);
    return option;
}

} // namespace

/// The titles of sub-windows.
class TitleBarPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subWindow_data();
    void subWindow();
    void subWindowTitleFades();
    void subWindowTitleIsElided();
    void buttons_data();
    void buttons();
    void buttonsAreMirrored();
    void onlyWantedParts();
    void icon();
    void buttonState_data();
    void buttonState();
    void buttonIsTinted();
    void noPlaceForButton();
    void subWindowNeedsItsOption();

private:
    QImage barPicture(const QStyleOptionComplex &option)
    {
        return m_recorder.picture(QStyle::CC_TitleBar, option, nullptr, size);
    }
    QRect placeOf(const QStyleOptionTitleBar &option, QStyle::SubControl subControl) const
    {
        return m_recorder.subControlRect(QStyle::CC_TitleBar, &option, subControl, nullptr);
    }
    QVector<QRect> buttonRects() const
    {
        QVector<QRect> rects;
        for (const PaintCall &call : m_recorder.calls()) {
            if (call.element == text("PE_PanelButtonBevel")) {
                rects.append(call.rect);
            }
        }
        return rects;
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void TitleBarPaintTest::subWindow_data()
{
    QTest::addColumn<bool>("isActive");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("face");
    QTest::addColumn<QString>("border");
    const QString border = text("CardBorderBrush");
    QTest::newRow("active") << true << true << text("BackgroundUpLevel1Brush") << border;
    QTest::newRow("inactive") << false << true << text("BackgroundSubLevel1Brush") << border;
    QTest::newRow("disabled") << false << false << text("BackgroundSubLevel1BrushDisabled")
                              << text("CardBorderBrushDisabled");
}

void TitleBarPaintTest::subWindow()
{
    QFETCH(bool, isActive);
    QFETCH(bool, enabled);
    QFETCH(QString, face);
    QFETCH(QString, border);
    QStyleOptionTitleBar option = titleBar(isActive);
    option.state.setFlag(QStyle::State_Enabled, enabled);
    option.subControls = QStyle::SC_None;
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(m_theme.brush(border));
    QPainter painter(&expected);
    painter.fillRect(option.rect.adjusted(1, 1, -1, -1), m_theme.brush(face));
    painter.end();
    QCOMPARE(barPicture(option), expected);
    QVERIFY(m_recorder.calls().empty());
}

void TitleBarPaintTest::subWindowTitleFades()
{
    QStyleOptionTitleBar active = titleBar(true);
    active.subControls = QStyle::SC_TitleBarLabel;
    active.text = text("IIIIII");
    QVERIFY(countOf(barPicture(active), Qt::red) > 0);
    QStyleOptionTitleBar inactive = titleBar(false);
    inactive.subControls = QStyle::SC_TitleBarLabel;
    const QImage untitled = barPicture(inactive);
    inactive.text = active.text;
    const QImage titled = barPicture(inactive);
    QCOMPARE(countOf(titled, Qt::red), 0);
    QVERIFY(titled != untitled);

    // A disabled one is in the colour of its group.
    active.state.setFlag(QStyle::State_Enabled, false);
    active.palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::blue);
    const QImage disabled = barPicture(active);
    QVERIFY(countOf(disabled, Qt::blue) > 0);
    QCOMPARE(countOf(disabled, Qt::red), 0);
}

void TitleBarPaintTest::subWindowTitleIsElided()
{
    QStyleOptionTitleBar option = titleBar(true);
    option.subControls = QStyle::SC_TitleBarLabel;
    const QImage untitled = barPicture(option);
    option.text = text("IIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIII");
    const QImage titled = barPicture(option);
    const QRect label = placeOf(option, QStyle::SC_TitleBarLabel);
    QVERIFY(titled != untitled);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (!label.contains(x, y)) {
                QCOMPARE(titled.pixel(x, y), untitled.pixel(x, y));
            }
        }
    }
}

void TitleBarPaintTest::buttons_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("windowState");
    QTest::addColumn<QVector<QStyle::SubControl>>("expected");
    const int usual = int(usualFlags);
    QTest::newRow("usual") << usual << int(Qt::WindowNoState)
                           << QVector<QStyle::SubControl>{QStyle::SC_TitleBarMinButton,
                                                          QStyle::SC_TitleBarMaxButton,
                                                          QStyle::SC_TitleBarCloseButton};
    QTest::newRow("minimised") << usual << int(Qt::WindowMinimized)
                               << QVector<QStyle::SubControl>{QStyle::SC_TitleBarMaxButton,
                                                              QStyle::SC_TitleBarCloseButton,
                                                              QStyle::SC_TitleBarNormalButton};
    QTest::newRow("maximised") << usual << int(Qt::WindowMaximized)
                               << QVector<QStyle::SubControl>{QStyle::SC_TitleBarMinButton,
                                                              QStyle::SC_TitleBarCloseButton,
                                                              QStyle::SC_TitleBarNormalButton};
    QTest::newRow("close only") << int(Qt::WindowTitleHint | Qt::WindowSystemMenuHint)
                                << int(Qt::WindowNoState)
                                << QVector<QStyle::SubControl>{QStyle::SC_TitleBarCloseButton};
    QTest::newRow("help") << int(Qt::WindowSystemMenuHint | Qt::WindowContextHelpButtonHint)
                          << int(Qt::WindowNoState)
                          << QVector<QStyle::SubControl>{QStyle::SC_TitleBarCloseButton,
                                                         QStyle::SC_TitleBarContextHelpButton};
    QTest::newRow("shade") << int(Qt::WindowSystemMenuHint | Qt::WindowShadeButtonHint)
                           << int(Qt::WindowNoState)
                           << QVector<QStyle::SubControl>{QStyle::SC_TitleBarCloseButton,
                                                          QStyle::SC_TitleBarShadeButton};
    QTest::newRow("unshade") << int(Qt::WindowSystemMenuHint | Qt::WindowShadeButtonHint)
                             << int(Qt::WindowMinimized)
                             << QVector<QStyle::SubControl>{QStyle::SC_TitleBarCloseButton,
                                                            QStyle::SC_TitleBarUnshadeButton};
    QTest::newRow("none") << int(Qt::WindowTitleHint) << int(Qt::WindowNoState)
                          << QVector<QStyle::SubControl>{};
}

void TitleBarPaintTest::buttons()
{
    QFETCH(int, flags);
    QFETCH(int, windowState);
    QFETCH(QVector<QStyle::SubControl>, expected);
    const QStyleOptionTitleBar option =
        titleBar(true, Qt::WindowFlags(flags), Qt::WindowStates(windowState));
    barPicture(option);
    QVector<QRect> expectedRects;
    for (const QStyle::SubControl subControl : expected) {
        expectedRects.append(placeOf(option, subControl));
        QVERIFY(expectedRects.last().isValid());
    }
    QCOMPARE(buttonRects(), expectedRects);
}

void TitleBarPaintTest::buttonsAreMirrored()
{
    QStyleOptionTitleBar option = titleBar(true);
    barPicture(option);
    const QVector<QRect> rects = buttonRects();
    option.direction = Qt::RightToLeft;
    barPicture(option);
    QVector<QRect> mirrored;
    for (const QRect &rect : rects) {
        mirrored.append(QStyle::visualRect(Qt::RightToLeft, option.rect, rect));
    }
    QVERIFY(!rects.isEmpty());
    QCOMPARE(buttonRects(), mirrored);
}

void TitleBarPaintTest::onlyWantedParts()
{
    QStyleOptionTitleBar option = titleBar(true);
    option.text = text("Layers");
    option.subControls = QStyle::SC_TitleBarMaxButton;
    const QImage picture = barPicture(option);
    QCOMPARE(buttonRects(), QVector<QRect>{placeOf(option, QStyle::SC_TitleBarMaxButton)});
    QCOMPARE(countOf(picture, Qt::red), 0);
}

void TitleBarPaintTest::icon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::green);
    QStyleOptionTitleBar option = titleBar(true);
    option.subControls = QStyle::SC_TitleBarSysMenu;
    option.icon = pixmap;
    const QImage picture = barPicture(option);
    QCOMPARE(m_recorder.elements(), QStringList{text("drawItemPixmap")});
    const QRect place = placeOf(option, QStyle::SC_TitleBarSysMenu);
    QCOMPARE(m_recorder.call("drawItemPixmap").rect, place);
    QCOMPARE(picture.pixelColor(place.center()), QColor(Qt::green));
}

void TitleBarPaintTest::buttonState_data()
{
    QTest::addColumn<QStyle::SubControl>("active");
    QTest::addColumn<QStyle::State>("expected");
    const QStyle::State passedOn = QStyle::State_Active | QStyle::State_HasFocus |
                                   QStyle::State_Enabled | QStyle::State_Sunken |
                                   QStyle::State_MouseOver;
    QTest::newRow("in use") << QStyle::SC_TitleBarCloseButton << passedOn;
    QTest::newRow("another one") << QStyle::SC_TitleBarMinButton
                                 << QStyle::State(QStyle::State_None);
    QTest::newRow("none") << QStyle::SC_None << QStyle::State(QStyle::State_None);
}

void TitleBarPaintTest::buttonState()
{
    QFETCH(QStyle::SubControl, active);
    QFETCH(QStyle::State, expected);
    QStyleOptionTitleBar option = titleBar(true);
    option.state = QStyle::State(0x7fffffff);
    option.activeSubControls = active;
    const CallRecorder recorder;
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    recorder.style().drawTitleBarButton(&painter, &option, QStyle::SC_TitleBarCloseButton,
                                        QStyle::SP_TitleBarCloseButton, nullptr);
    const PaintCall panel = recorder.calls().front();
    const PaintCall pixmap = recorder.calls().back();
    const QRect place = placeOf(option, QStyle::SC_TitleBarCloseButton);
    QCOMPARE(panel.element, text("PE_PanelButtonBevel"));
    QCOMPARE(panel.rect, place);
    QCOMPARE(panel.state, expected);
    QCOMPARE(pixmap.element, text("drawItemPixmap"));
    QCOMPARE(pixmap.rect, place);
}

void TitleBarPaintTest::buttonIsTinted()
{
    m_recorder.stopAt("PE_PanelButtonBevel");
    IconTheme icons;
    icons.add(text("action.app.maximize"), referenceForeground);
    QStyleOptionTitleBar option = titleBar(true);
    option.subControls = QStyle::SC_TitleBarMaxButton;
    const QPoint centre = placeOf(option, QStyle::SC_TitleBarMaxButton).center();
    QCOMPARE(m_theme.nameAt(barPicture(option), centre), text("ButtonUncheckedForegroundBrush"));
    option.activeSubControls = QStyle::SC_TitleBarMaxButton;
    option.state |= QStyle::State_MouseOver;
    QCOMPARE(m_theme.nameAt(barPicture(option), centre),
             text("ButtonUncheckedHoverForegroundBrush"));
}

void TitleBarPaintTest::noPlaceForButton()
{
    const QStyleOptionTitleBar option = titleBar(true, Qt::WindowTitleHint);
    QVERIFY(!placeOf(option, QStyle::SC_TitleBarCloseButton).isValid());
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::black);
    const QImage before = picture;
    QPainter painter(&picture);
    m_recorder.style().drawTitleBarButton(&painter, &option, QStyle::SC_TitleBarCloseButton,
                                          QStyle::SP_TitleBarCloseButton, nullptr);
    painter.end();
    QCOMPARE(picture, before);
    QVERIFY(m_recorder.calls().empty());
}

void TitleBarPaintTest::subWindowNeedsItsOption()
{
    QStyleOptionComplex option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    const QImage picture = barPicture(option);
    QVERIFY(m_theme.namesIn(picture).isEmpty());
}

QTEST_MAIN(TitleBarPaintTest)
#include "TitleBarPaintTest.moc"
