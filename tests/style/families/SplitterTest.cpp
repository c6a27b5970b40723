#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QSplitter>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

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

/// Splitters.
class SplitterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splitter_data();
    void splitter();
    void ofNoWidget();
    void gripsOfSmall_data();
    void gripsOfSmall();

private:
    QString nameAt(const QImage &picture, int x, int y) const
    {
        return m_theme.nameAt(picture, {x, y});
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void SplitterTest::splitter_data()
{
    QTest::addColumn<bool>("isFilled");
    QTest::addColumn<bool>("isSmall");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("face");
    QTest::newRow("plain") << false << false << true << QString();
    QTest::newRow("filled") << true << false << true << text("CardBorderBrush");
    QTest::newRow("filled, disabled") << true << false << false << text("CardBorderBrushDisabled");
    QTest::newRow("small") << false << true << true << QString();
    QTest::newRow("filled and small") << true << true << true << text("CardBorderBrush");
}

void SplitterTest::splitter()
{
    QFETCH(bool, isFilled);
    QFETCH(bool, isSmall);
    QFETCH(bool, enabled);
    QFETCH(QString, face);
    QSplitter splitter;
    splitter.setProperty("filled", isFilled);
    splitter.setProperty("small", isSmall);
    QStyleOption option = plainOption(enabled ? QStyle::State_Enabled : QStyle::State_None);
    option.state |= QStyle::State_Horizontal;
    option.rect = QRect(10, 0, 6, size.height());
    const QImage picture = m_recorder.picture(QStyle::CE_Splitter, option, &splitter, size);

    QImage ground = plainPicture(size);
    if (!face.isEmpty()) {
        QPainter painter(&ground);
        painter.fillRect(option.rect, m_theme.brush(face));
    }
    QCOMPARE(picture != ground, isSmall);
    QCOMPARE(nameAt(picture, 10, 20), face);
    QCOMPARE(paintedRect(picture).isEmpty(), face.isEmpty() && !isSmall);
}

void SplitterTest::ofNoWidget()
{
    QCOMPARE(
        m_recorder.picture(QStyle::CE_Splitter, plainOption(QStyle::State_Enabled), nullptr, size),
        plainPicture(size));
}

void SplitterTest::gripsOfSmall_data()
{
    QTest::addColumn<bool>("isHorizontal");
    QTest::addColumn<QRect>("handle");
    QTest::addColumn<QRect>("expected");
    // The last grip that has room starts a multiple of three pixels after the first.
    QTest::newRow("upright") << true << QRect(20, 0, 6, 40) << QRect(22, 0, 2, 38);
    QTest::newRow("lying") << false << QRect(0, 20, 60, 6) << QRect(0, 22, 59, 2);
    QTest::newRow("upright, one pixel wide") << true << QRect(20, 0, 1, 40) << QRect(20, 0, 1, 38);
    QTest::newRow("lying, one pixel high") << false << QRect(0, 20, 60, 1) << QRect(0, 20, 59, 1);
}

void SplitterTest::gripsOfSmall()
{
    QFETCH(bool, isHorizontal);
    QFETCH(QRect, handle);
    QFETCH(QRect, expected);
    QSplitter splitter;
    splitter.setProperty("small", true);
    QStyleOption option = plainOption(QStyle::State_Enabled);
    option.state.setFlag(QStyle::State_Horizontal, isHorizontal);
    option.rect = handle;
    QCOMPARE(paintedRect(m_recorder.picture(QStyle::CE_Splitter, option, &splitter, size)),
             expected);
}

QTEST_MAIN(SplitterTest)
#include "SplitterTest.moc"
