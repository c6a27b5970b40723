#include <theme/Theme.h>
#include <theme/ThemeFactory.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLayout>
#include <QtWidgets/QWidget>

#include <memory>
#include <pages/PageTable.h>

using namespace TARN::Gallery;

namespace {

// What the gallery's window leaves to a page in its pictures.
constexpr QSize RoomForAPage(1310, 790);

std::unique_ptr<QWidget> createPage(const Page &page)
{
    std::unique_ptr<QWidget> widget(page.create());
    widget->ensurePolished();
    widget->resize(widget->sizeHint().expandedTo(RoomForAPage));
    return widget;
}

bool showsSeveralColors(const QImage &image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first) {
                return true;
            }
        }
    }
    return false;
}

struct ShownClasses
{
    QSet<QByteArray> enabled;
    QSet<QByteArray> disabled;
};

ShownClasses shownClasses()
{
    ShownClasses result;
    for (const Page &page : pages()) {
        const auto contents = createPage(page);
        for (const QWidget *widget : contents->findChildren<QWidget *>()) {
            auto &names = widget->isEnabled() ? result.enabled : result.disabled;
            names.insert(widget->metaObject()->className());
        }
    }
    return result;
}

/// The widgets that some page shows.
constexpr const char *neededClasses[] = {"QCalendarWidget",
                                         "QCheckBox",
                                         "QColorDialog",
                                         "QColumnView",
                                         "QComboBox",
                                         "QCommandLinkButton",
                                         "QDateEdit",
                                         "QDateTimeEdit",
                                         "QDial",
                                         "QDialogButtonBox",
                                         "QDockWidget",
                                         "QDoubleSpinBox",
                                         "QErrorMessage",
                                         "QFileDialog",
                                         "QFocusFrame",
                                         "QFontComboBox",
                                         "QFontDialog",
                                         "QFrame",
                                         "QGraphicsView",
                                         "QGroupBox",
                                         "QHeaderView",
                                         "QInputDialog",
                                         "QKeySequenceEdit",
                                         "QLCDNumber",
                                         "QLabel",
                                         "QLineEdit",
                                         "QListView",
                                         "QListWidget",
                                         "QMainWindow",
                                         "QMdiArea",
                                         "QMdiSubWindow",
                                         "QMenu",
                                         "QMenuBar",
                                         "QMessageBox",
                                         "QPlainTextEdit",
                                         "QProgressBar",
                                         "QProgressDialog",
                                         "QPushButton",
                                         "QRadioButton",
                                         "QRubberBand",
                                         "QScrollArea",
                                         "QScrollBar",
                                         "QSizeGrip",
                                         "QSlider",
                                         "QSpinBox",
                                         "QSplitter",
                                         "QSplitterHandle",
                                         "QStackedWidget",
                                         "QStatusBar",
                                         "QTabBar",
                                         "QTabWidget",
                                         "QTableView",
                                         "QTableWidget",
                                         "QTextBrowser",
                                         "QTextEdit",
                                         "QTimeEdit",
                                         "QToolBar",
                                         "QToolBox",
                                         "QToolButton",
                                         "QTreeView",
                                         "QTreeWidget",
                                         "QUndoView",
                                         "QWizard",
                                         "QWizardPage"};

} // namespace

class PageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void idsNameFiles();
    void familiesStandTogether();
    void pagesFitTheWindow_data();
    void pagesFitTheWindow();
    void widgetsAppearEnabledAndDisabled_data();
    void widgetsAppearEnabledAndDisabled();
};

void PageTest::initTestCase()
{
    auto *factory = TARN::ThemeFactory::getInstance();
    factory->setThemesRepositoryPath(QStringLiteral(MOX_THEMES));
    TARN::Theme *theme = factory->getTheme(QStringLiteral("Dark"));
    QVERIFY(theme);
    theme->customize(qApp);
}

void PageTest::idsNameFiles()
{
    const QRegularExpression words(QStringLiteral("^[a-z0-9]+(-[a-z0-9]+)*$"));
    QStringList ids;
    QStringList titles;
    for (const Page &page : pages()) {
        QVERIFY2(words.match(page.id).hasMatch(), page.id.latin1());
        ids.append(page.id);
        titles.append(page.title);
    }
    QVERIFY(!ids.isEmpty());
    QCOMPARE(ids.removeDuplicates(), 0);
    QCOMPARE(titles.removeDuplicates(), 0);
}

void PageTest::familiesStandTogether()
{
    QStringList families;
    for (const Page &page : pages()) {
        if (families.isEmpty() || families.constLast() != page.family) {
            families.append(page.family);
        }
    }
    QCOMPARE(families.removeDuplicates(), 0);
}

void PageTest::pagesFitTheWindow_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < pages().size(); ++i) {
        QTest::newRow(pages().at(i).id.latin1()) << i;
    }
}

void PageTest::pagesFitTheWindow()
{
    QFETCH(const int, index);
    const auto page = createPage(pages().at(index));
    const QImage image = page->grab().toImage();
    QVERIFY(showsSeveralColors(image));

    const QSize needed = page->layout()->totalMinimumSize();
    QVERIFY2(needed.width() <= RoomForAPage.width(), qPrintable(QString::number(needed.width())));
    QVERIFY2(needed.height() <= RoomForAPage.height(),
             qPrintable(QString::number(needed.height())));
}

void PageTest::widgetsAppearEnabledAndDisabled_data()
{
    QTest::addColumn<QByteArray>("className");
    for (const char *name : neededClasses) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void PageTest::widgetsAppearEnabledAndDisabled()
{
    QFETCH(const QByteArray, className);
    static const ShownClasses shown = shownClasses();
    QVERIFY2(shown.enabled.contains(className), "no page shows it enabled");
    QVERIFY2(shown.disabled.contains(className), "no page shows it disabled");
}

QTEST_MAIN(PageTest)
#include "PageTest.moc"
