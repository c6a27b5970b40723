#include <QtTest/QtTest>

#include <preview/SheetLayout.h>

using TARN::ThemeTool::arrangeInColumns;

namespace {

constexpr int Gap = 10;

// Cells of different sizes, none like its neighbours.
QVector<QSize> unevenCells()
{
    QVector<QSize> cells;
    for (int i = 0; i < 23; ++i) {
        cells.append(QSize(100 + 37 * i % 90, 60 + 53 * i % 140));
    }
    return cells;
}

} // namespace

/// Where the cells of a contact sheet stand.
class SheetLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noCellsNeedNoPlace();
    void cellsHaveWhatTheyNeed();
    void gapsAreEqual();
    void columnsAreEven();
    void theAspectDecidesOnTheColumns_data();
    void theAspectDecidesOnTheColumns();
};

void SheetLayoutTest::noCellsNeedNoPlace()
{
    QVERIFY(arrangeInColumns({}, Gap, 1).isEmpty());
}

void SheetLayoutTest::cellsHaveWhatTheyNeed()
{
    const QVector<QSize> cells = unevenCells();
    const QVector<QRect> places = arrangeInColumns(cells, Gap, 1.4);
    QCOMPARE(places.size(), cells.size());
    QCOMPARE(places.first().topLeft(), QPoint(0, 0));
    for (int i = 0; i < cells.size(); ++i) {
        QVERIFY(places.at(i).width() >= cells.at(i).width());
        QCOMPARE(places.at(i).height(), cells.at(i).height());
    }
}

void SheetLayoutTest::gapsAreEqual()
{
    const QVector<QRect> places = arrangeInColumns(unevenCells(), Gap, 1.4);
    for (int i = 1; i < places.size(); ++i) {
        const QRect former = places.at(i - 1);
        const QRect place = places.at(i);
        if (place.top() == 0) {
            QCOMPARE(place.left(), former.left() + former.width() + Gap);
        } else {
            QCOMPARE(place.top(), former.top() + former.height() + Gap);
            QCOMPARE(place.left(), former.left());
            QCOMPARE(place.width(), former.width());
        }
    }
}

void SheetLayoutTest::columnsAreEven()
{
    // The other three together are as high as the first one.
    const QVector<QSize> cells{{100, 310}, {100, 100}, {100, 100}, {100, 90}};
    const QVector<QRect> places = arrangeInColumns(cells, Gap, 0.7);
    QCOMPARE(places,
             (QVector<QRect>{
                 {0, 0, 100, 310}, {110, 0, 100, 100}, {110, 110, 100, 100}, {110, 220, 100, 90}}));
}

void SheetLayoutTest::theAspectDecidesOnTheColumns_data()
{
    QTest::addColumn<double>("aspect");
    QTest::addColumn<int>("columns");
    QTest::newRow("narrow") << 0.01 << 1;
    QTest::newRow("square") << 1.0 << 4;
    QTest::newRow("wide") << 100.0 << 16;
}

void SheetLayoutTest::theAspectDecidesOnTheColumns()
{
    QFETCH(const double, aspect);
    QFETCH(const int, columns);
    const QVector<QRect> places = arrangeInColumns(QVector<QSize>(16, QSize(50, 50)), Gap, aspect);
    const auto count = std::count_if(places.cbegin(), places.cend(),
                                     [](const QRect &place) { return place.top() == 0; });
    QCOMPARE(int(count), columns);
}

QTEST_APPLESS_MAIN(SheetLayoutTest)
#include "SheetLayoutTest.moc"
