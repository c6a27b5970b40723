#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressBar>

#include <support/TestedMode.h>
#include <support/geometry/FusionReference.h>

using TARN::BaseStyle;

/// The sizes of progress bars, and what polishing does to them.
class ProgressBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { enterTestedMode(); }
    void size();
    void sizeNeedsItsOption();
    void textReadsUpwards();

private:
    BaseStyle m_style;
};

void ProgressBarTest::size()
{
    const BaseStyle style;
    const FusionReference reference;
    QFont font = QApplication::font();
    font.setPixelSize(30);
    QStyleOptionProgressBar option;
    option.fontMetrics = QFontMetrics(font);
    const int thickness = QFontMetrics(font).height() + 4;
    const auto type = QStyle::CT_ProgressBar;
    for (const int extent : {10, 200}) {
        const QSize contents(extent, extent);
        const QSize fusion = reference.fusionSize(type, option, contents, nullptr);
        option.orientation = Qt::Horizontal;
        QCOMPARE(style.sizeFromContents(type, &option, contents, nullptr),
                 QSize(fusion.width(), qMax(fusion.height(), thickness)));
        option.orientation = Qt::Vertical;
        QCOMPARE(style.sizeFromContents(type, &option, contents, nullptr),
                 QSize(qMax(fusion.width(), thickness), fusion.height()));
    }
}

void ProgressBarTest::sizeNeedsItsOption()
{
    QStyleOptionProgressBar tooOld;
    tooOld.version = 1;
    compareWithFusion(QStyle::CT_ProgressBar, tooOld, QSize(1, 1), nullptr);
    const QStyleOption plain;
    compareWithFusion(QStyle::CT_ProgressBar, plain, QSize(1, 1), nullptr);
}

void ProgressBarTest::textReadsUpwards()
{
    QProgressBar bar;
    bar.setTextDirection(QProgressBar::TopToBottom);
    m_style.polish(&bar);
    QCOMPARE(bar.textDirection(), QProgressBar::BottomToTop);
}

QTEST_MAIN(ProgressBarTest)
#include "ProgressBarTest.moc"
