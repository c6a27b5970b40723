#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <memory>
#include <pages/StatesPage.h>
#include <states/ElementSample.h>
#include <support/Text.h>

using namespace TARN::Gallery;

namespace {

const ElementFamily &family(const char *id)
{
    const QVector<ElementFamily> &families = elementFamilies();
    const auto found =
        std::find_if(families.begin(), families.end(),
                     [id](const ElementFamily &candidate) { return candidate.id == text(id); });
    Q_ASSERT(found != families.end());
    return *found;
}

std::unique_ptr<QWidget> createPage(const char *id)
{
    std::unique_ptr<QWidget> page(createStatesPage(family(id)));
    page->ensurePolished();
    page->resize(page->sizeHint());
    page->grab();
    return page;
}

/// Returns what the cell called \a name shows.
QImage cell(const QWidget &page, const char *name)
{
    auto *widget = page.findChild<QWidget *>(text(name));
    return widget ? widget->grab().toImage() : QImage();
}

} // namespace

/// The pages that show the elements of a family in all their states.
class StatesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyStateHasItsCell_data();
    void everyStateHasItsCell();
    void cellsShowTheirStates();
    void cellsFollowTheDisabledSwitch();
    void cellsFollowTheDirection();
    void cellsFollowTheTheme();

private:
    static void applyTheme(const char *name);
};

void StatesPageTest::initTestCase()
{
    qApp->setProperty("appLiveThemeSwitch", true);
    applyTheme("Dark");
}

void StatesPageTest::applyTheme(const char *name)
{
    TARN::BaseTheme(text(MOX_THEMES "/") + text(name)).customize(qApp);
}

void StatesPageTest::everyStateHasItsCell_data()
{
    QTest::addColumn<QByteArray>("id");
    for (const ElementFamily &row : elementFamilies()) {
        QTest::newRow(row.id.latin1()) << QByteArray(row.id.latin1());
    }
}

void StatesPageTest::everyStateHasItsCell()
{
    QFETCH(const QByteArray, id);
    const auto page = createPage(id.constData());
    for (const ElementSample &sample : family(id.constData()).samples) {
        for (const ElementState state : sample.states) {
            const QString name = text(sample.title) + text(": ") + stateName(state);
            auto *widget = page->findChild<QWidget *>(name);
            QVERIFY2(widget, qPrintable(name));
            QCOMPARE(widget->size(), sample.size);
        }
    }
}

void StatesPageTest::cellsShowTheirStates()
{
    const auto page = createPage("check-box-states");
    const QImage resting = cell(*page, "Check box: At rest");
    QVERIFY(!resting.isNull());
    for (const char *name : {"Check box: Checked", "Check box: Partly checked",
                             "Check box: Disabled", "Check box: Checked, disabled"}) {
        QVERIFY2(cell(*page, name) != resting, name);
    }
}

void StatesPageTest::cellsFollowTheDisabledSwitch()
{
    const auto page = createPage("button-states");
    const QImage enabled = cell(*page, "Push button: At rest");
    QVERIFY(cell(*page, "Push button: Disabled") != enabled);
    page->setEnabled(false);
    QVERIFY(cell(*page, "Push button: At rest") != enabled);
    QCOMPARE(cell(*page, "Push button: At rest"), cell(*page, "Push button: Disabled"));
    page->setEnabled(true);
    QCOMPARE(cell(*page, "Push button: At rest"), enabled);
    QVERIFY(cell(*page, "Push button: Disabled") != enabled);
}

void StatesPageTest::cellsFollowTheDirection()
{
    const auto page = createPage("check-box-states");
    const QImage leftToRight = cell(*page, "Check box: Checked");
    page->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(cell(*page, "Check box: Checked") != leftToRight);
    page->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(cell(*page, "Check box: Checked"), leftToRight);
}

void StatesPageTest::cellsFollowTheTheme()
{
    const auto page = createPage("button-states");
    const QImage dark = cell(*page, "Push button: At rest");
    applyTheme("Light");
    const QImage light = cell(*page, "Push button: At rest");
    QVERIFY(light != dark);
    QCOMPARE(cell(*createPage("button-states"), "Push button: At rest"), light);
    applyTheme("Dark");
    QCOMPARE(cell(*page, "Push button: At rest"), dark);
}

QTEST_MAIN(StatesPageTest)
#include "StatesPageTest.moc"
