#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <support/Text.h>
#include <support/painting/Pixels.h>

using TARN::BaseStyle;

namespace {

void apply(bool isComplete)
{
    qApp->setProperty("appCompleteTheming", isComplete);
    TARN::BaseTheme(text(MOX_SHIPPED_THEMES "/Dark")).customize(qApp);
}

QColor themeColor(const char *name)
{
    return BaseStyle::getColor(text(name), true);
}

/// A table of three columns, of which the second is sorted and all can be.
struct Table
{
    Table()
    {
        model.setHorizontalHeaderLabels({text("Name"), text("Area of it"), text("Two\nlines")});
        model.setVerticalHeaderLabels({text("1"), text("2")});
        model.setHeaderData(0, Qt::Horizontal, squareIcon(), Qt::DecorationRole);
        view.setModel(&model);
        view.setSortingEnabled(true);
        view.sortByColumn(1, Qt::AscendingOrder);
        view.resize(400, 200);
    }

    QStandardItemModel model{2, 3};
    QTableView view;
};

QStyleOptionHeader sortedOption(const QWidget &header, const QRect &rect)
{
    QStyleOptionHeader option;
    option.initFrom(&header);
    option.state |= QStyle::State_Horizontal;
    option.rect = rect;
    option.text = text("Text");
    option.sortIndicator = QStyleOptionHeader::SortDown;
    return option;
}

QImage pictureOf(QStyle::ControlElement element, const QStyleOption &option, const QWidget &widget)
{
    QImage picture = plainPicture(option.rect.size() + QSize(option.rect.left(), option.rect.top()),
                                  Qt::magenta);
    QPainter painter(&picture);
    qApp->style()->drawControl(element, &option, &painter, &widget);
    return picture;
}

} // namespace

/// The headers of the complete mode.
class HeaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sectionsAreAsLargeAsByDefault_data();
    void sectionsAreAsLargeAsByDefault();
    void arrowKeepsClearOfTheText_data();
    void arrowKeepsClearOfTheText();
    void textIsNotElidedAtTheSizeOfItsSection();
    void sectionsFadeAndHaveLines_data();
    void sectionsFadeAndHaveLines();
    void disabledSectionsAreFlat();
    void groundOfTheModelIsSeen();
    void textIsSeenInSectionsThatAreTooLow();
    void arrowStaysInItsSection();
    void pointsTheWayItIsSorted();
};

void HeaderTest::sectionsAreAsLargeAsByDefault_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<bool>("isSorted");

    QFont large = QApplication::font();
    large.setPointSize(20);
    QTest::newRow("plain") << QFont() << false;
    QTest::newRow("sorted") << QFont() << true;
    QTest::newRow("large") << large << true;
}

void HeaderTest::sectionsAreAsLargeAsByDefault()
{
    QFETCH(QFont, font);
    QFETCH(bool, isSorted);
    QVector<QSize> sizes[2];
    for (const bool isComplete : {false, true}) {
        apply(isComplete);
        Table table;
        table.view.horizontalHeader()->setFont(font);
        table.view.horizontalHeader()->setSortIndicatorShown(isSorted);
        table.view.show();
        for (int column = 0; column < 3; ++column) {
            table.view.resizeColumnToContents(column);
            sizes[int(isComplete)].append({table.view.columnWidth(column),
                                           table.view.horizontalHeader()->sizeHint().height()});
        }
        sizes[int(isComplete)].append(table.view.verticalHeader()->sizeHint());
    }
    QVERIFY(sizes[0].first().isValid());
    QCOMPARE(sizes[1], sizes[0]);
}

void HeaderTest::arrowKeepsClearOfTheText_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("horizontal") << Qt::Horizontal << Qt::LeftToRight;
    QTest::newRow("horizontal, right to left") << Qt::Horizontal << Qt::RightToLeft;
    QTest::newRow("vertical") << Qt::Vertical << Qt::LeftToRight;
    QTest::newRow("vertical, right to left") << Qt::Vertical << Qt::RightToLeft;
}

void HeaderTest::arrowKeepsClearOfTheText()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(Qt::LayoutDirection, direction);
    apply(true);
    QHeaderView header(orientation);
    header.setLayoutDirection(direction);
    QStyleOptionHeader option = sortedOption(header, QRect(3, 5, 90, 70));
    option.direction = direction;
    option.state.setFlag(QStyle::State_Horizontal, orientation == Qt::Horizontal);
    const QRect label = qApp->style()->subElementRect(QStyle::SE_HeaderLabel, &option, &header);
    QStyleOptionHeader arrow(option);
    arrow.rect = qApp->style()->subElementRect(QStyle::SE_HeaderArrow, &option, &header);
    QImage picture = plainPicture(QSize(120, 100));
    QPainter painter(&picture);
    qApp->style()->drawPrimitive(QStyle::PE_IndicatorHeaderArrow, &arrow, &painter, &header);
    painter.end();
    const QRect ink = paintedRect(picture);
    QVERIFY(!ink.isEmpty());
    QVERIFY(option.rect.contains(ink));
    QVERIFY(option.rect.contains(label));
    QVERIFY(!label.intersects(ink));
    if (orientation == Qt::Horizontal) {
        QCOMPARE(ink.right() < label.left(), direction == Qt::RightToLeft);
    } else {
        QVERIFY(ink.top() > label.bottom());
    }
}

void HeaderTest::textIsNotElidedAtTheSizeOfItsSection()
{
    apply(true);
    Table table;
    QHeaderView &header = *table.view.horizontalHeader();
    header.setTextElideMode(Qt::ElideRight);
    table.view.show();
    table.view.resizeColumnToContents(1);
    QStyleOptionHeader option =
        sortedOption(header, QRect(0, 0, table.view.columnWidth(1), header.height()));
    const QStyle &style = *qApp->style();
    // What the toolkit leaves to the text of a section that it elides.
    const int room = style.subElementRect(QStyle::SE_HeaderLabel, &option, &header).width() -
                     2 * style.pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header) -
                     style.pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, &header);
    QVERIFY(room >= header.fontMetrics().horizontalAdvance(text("Area of it")));
}

void HeaderTest::sectionsFadeAndHaveLines_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void HeaderTest::sectionsFadeAndHaveLines()
{
    QFETCH(Qt::LayoutDirection, direction);
    apply(true);
    QHeaderView header(Qt::Horizontal);
    QStyleOptionHeader option = sortedOption(header, QRect(0, 0, 60, 37));
    option.direction = direction;
    const QImage picture = pictureOf(QStyle::CE_HeaderSection, option, header);
    const bool isMirrored = direction == Qt::RightToLeft;
    const int end = isMirrored ? 0 : 59;
    const int other = isMirrored ? 59 : 0;
    QCOMPARE(picture.pixelColor(end, 10), themeColor("BackgroundUpLevel1Color"));
    QVERIFY(areAlike(picture.pixelColor(other, 0), themeColor("BackgroundSubLevel1Color")));
    QVERIFY(areAlike(picture.pixelColor(other, 35), themeColor("BackgroundSubLevel2Color")));
    QCOMPARE(picture.pixelColor(other, 36), themeColor("BackgroundSubLevel2Color"));
    QVERIFY(picture.pixelColor(30, 5) != picture.pixelColor(30, 30));
}

void HeaderTest::disabledSectionsAreFlat()
{
    apply(true);
    QHeaderView header(Qt::Horizontal);
    QStyleOptionHeader option = sortedOption(header, QRect(0, 0, 60, 37));
    option.state &= ~QStyle::State_Enabled;
    const QImage section = pictureOf(QStyle::CE_HeaderSection, option, header);
    const QImage empty = pictureOf(QStyle::CE_HeaderEmptyArea, option, header);
    QCOMPARE(section, plainPicture({60, 37}, themeColor("BackgroundSubLevel2Color")));
    QCOMPARE(empty, section);
}

void HeaderTest::groundOfTheModelIsSeen()
{
    apply(true);
    Table table;
    table.model.setHeaderData(2, Qt::Horizontal, QBrush(Qt::green), Qt::BackgroundRole);
    table.view.show();
    QHeaderView &header = *table.view.horizontalHeader();
    const QImage picture = header.grab().toImage();
    const int left = header.sectionViewportPosition(2);
    QCOMPARE(picture.pixelColor(left + 2, 2), QColor(Qt::green));
    QVERIFY(picture.pixelColor(left - 5, 2) != QColor(Qt::green));
}

void HeaderTest::textIsSeenInSectionsThatAreTooLow()
{
    apply(true);
    QHeaderView header(Qt::Horizontal);
    const int letters = header.fontMetrics().height();
    const QStyleOptionHeader option = sortedOption(header, QRect(0, 0, 90, letters + 3));
    const QRect label = qApp->style()->subElementRect(QStyle::SE_HeaderLabel, &option, &header);
    QVERIFY(label.height() >= letters);
    QVERIFY(option.rect.contains(label));
}

void HeaderTest::arrowStaysInItsSection()
{
    apply(true);
    QHeaderView header(Qt::Horizontal);
    const QStyleOptionHeader option = sortedOption(header, QRect(30, 0, 6, 37));
    const QImage picture = pictureOf(QStyle::CE_Header, option, header);
    QCOMPARE(paintedRect(picture, Qt::magenta), option.rect);
}

void HeaderTest::pointsTheWayItIsSorted()
{
    apply(true);
    QHeaderView header(Qt::Horizontal);
    QStyleOptionHeader option = sortedOption(header, QRect(0, 0, 16, 16));
    const auto arrow = [&](QStyleOptionHeader::SortIndicator sorting) {
        option.sortIndicator = sorting;
        QImage picture = plainPicture({16, 16});
        QPainter painter(&picture);
        qApp->style()->drawPrimitive(QStyle::PE_IndicatorHeaderArrow, &option, &painter, &header);
        return picture;
    };
    const QImage down = arrow(QStyleOptionHeader::SortDown);
    const QImage up = arrow(QStyleOptionHeader::SortUp);
    QVERIFY(!paintedRect(down).isEmpty());
    QVERIFY(areAlike(up, down.mirrored()));
    QVERIFY(!areAlike(up, down));
    QVERIFY(paintedRect(arrow(QStyleOptionHeader::None)).isEmpty());
}

QTEST_MAIN(HeaderTest)
#include "HeaderTest.moc"
