#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolTip>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QSize size(60, 40);

const QRect wholePicture(QPoint(), size);

QStyleOption plainOption(QStyle::State state)
{
    QStyleOption option;
    option.rect = wholePicture;
    option.state = state;
    return option;
}

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

/// Tool tips and status bars.
class TipsAndStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tip_data();
    void tip();
    void borderIsHairline();
    void statusBarHeight();
    void statusBar_data();
    void statusBar();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;
    BaseStyle m_style;
};

void TipsAndStatusTest::tip_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("isAboutError");
    QTest::newRow("no tip") << QString() << false;
    QTest::newRow("plain") << text("Measures a distance") << false;
    QTest::newRow("error") << text("<div class='errorTooltip'>Too long</div>") << true;
    QTest::newRow("other case") << text("<div class='ErrorTooltip'>Too long</div>") << false;
}

void TipsAndStatusTest::tip()
{
    QFETCH(QString, shown);
    QFETCH(bool, isAboutError);
    QToolTip::showText(QPoint(5, 5), shown);
    QCOMPARE(QToolTip::text(), shown);

    QStyleOption option;
    option.rect = QRect(0, 0, 30, 20);
    option.state = QStyle::State_Enabled;
    option.palette.setColor(QPalette::ToolTipBase, Qt::blue);
    option.palette.setColor(QPalette::Shadow, Qt::red);
    const QImage picture =
        m_recorder.picture(QStyle::PE_PanelTipLabel, option, nullptr, QSize(40, 30));

    const QColor border = isAboutError ? m_theme.color(text("StatusDangerColor")) : QColor(Qt::red);
    for (const QPoint &edge : {QPoint(0, 0), QPoint(29, 0), QPoint(0, 19), QPoint(29, 19),
                               QPoint(15, 0), QPoint(15, 19), QPoint(0, 10), QPoint(29, 10)}) {
        QCOMPARE(picture.pixelColor(edge), border);
    }
    QCOMPARE(picture.pixelColor(1, 1), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(28, 18), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(30, 10), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(15, 20), QColor(Qt::black));
}

void TipsAndStatusTest::borderIsHairline()
{
    QImage picture(60, 60, QImage::Format_RGB32);
    picture.setDevicePixelRatio(3);
    QStyleOption option;
    option.rect = QRect(0, 0, 20, 20);
    option.palette.setColor(QPalette::ToolTipBase, Qt::blue);
    option.palette.setColor(QPalette::Shadow, Qt::red);
    QPainter painter(&picture);
    m_recorder.style().drawPrimitive(QStyle::PE_PanelTipLabel, &option, &painter);
    painter.end();

    QImage expected(60, 60, QImage::Format_RGB32);
    expected.fill(Qt::red);
    QPainter expectedPainter(&expected);
    expectedPainter.fillRect(1, 1, 58, 58, Qt::blue);
    expectedPainter.end();
    picture.setDevicePixelRatio(1);
    QCOMPARE(picture, expected);
}

void TipsAndStatusTest::statusBar_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("enabled") << QStyle::State(QStyle::State_Enabled) << QString();
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << text("Disabled");
}

void TipsAndStatusTest::statusBar()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, suffix);
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(m_theme.brush(text("BackgroundSubLevel1Brush") + suffix));
    QPainter painter(&expected);
    painter.fillRect(0, 0, size.width(), 1, m_theme.brush(text("CardBorderBrush") + suffix));
    painter.end();
    QCOMPARE(m_recorder.picture(QStyle::PE_PanelStatusBar, plainOption(state), nullptr, size),
             expected);
}

void TipsAndStatusTest::statusBarHeight()
{
    QStatusBar bar;
    m_style.polish(&bar);
    QCOMPARE(bar.minimumHeight(), 34);
    QToolBar other;
    const int before = other.minimumHeight();
    m_style.polish(&other);
    QCOMPARE(other.minimumHeight(), before);
}

QTEST_MAIN(TipsAndStatusTest)
#include "TipsAndStatusTest.moc"
