#include "FreshRendering.h"
#include "MixedWindow.h"

#include <resources/ThemeColorHelper.h>
#include <resources/ThemeResources.h>
#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtGui/QFontDatabase>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyledItemDelegate>

#include <malloc.h>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::BaseStyle;
using TARN::BaseTheme;
using TARN::ThemeColorHelper;
using TARN::ThemeResources;

namespace {

/// A theme that differs from the others in every value that is kept, in its font and in its
/// images.
ThemeConfiguration strangeConfiguration()
{
    ThemeConfiguration configuration;
    configuration.factors = "<Factor name='LightForegroundDisableFactor'>300</Factor>"
                            "<Factor name='DarkBackgroundDisableFactor'>400</Factor>";
    configuration.colors = "<Color name='MainColor'>#aa2266</Color>"
                           "<Color name='BackgroundUpLevel1Color'>#ffeecc</Color>"
                           "<Color name='BackgroundSubLevel1Color'>#ccaa88</Color>"
                           "<Color name='BackgroundSubLevel2Color'>#eeccaa</Color>";
    configuration.brushes =
        "<SolidBrush name='MainBrush'>MainColor</SolidBrush>"
        "<SolidBrush name='CardBorderBrush'>BackgroundUpLevel1Color</SolidBrush>"
        "<SolidBrush name='CardBorderBrushDisabled'>BackgroundSubLevel1Color</SolidBrush>"
        "<SolidBrush name='GrooveBackgroundBrush'>BackgroundSubLevel2Color</SolidBrush>"
        "<SolidBrush name='GrooveBackgroundBrushDisabled'>MainColor</SolidBrush>";
    configuration.font.replace("<LargeSize>12", "<LargeSize>15");
    configuration.opacities = "<Opacity name='RubberBandOpacity'>0.75</Opacity>";
    configuration.cornerRadii.replace("<BaseSize>4", "<BaseSize>9");
    return configuration;
}

struct InstalledPaths
{
    QStringList icons = QDir::searchPaths(text("icons"));
    QStringList cursors = QDir::searchPaths(text("cursors"));
    QStringList resources = QDir::searchPaths(text("resources"));
    QStringList iconThemes = QIcon::themeSearchPaths();
    QStringList fallbackIcons = QIcon::fallbackSearchPaths();

    bool operator==(const InstalledPaths &other) const
    {
        return icons == other.icons && cursors == other.cursors && resources == other.resources &&
               iconThemes == other.iconThemes && fallbackIcons == other.fallbackIcons;
    }
};

} // namespace

/// Switching themes without a trace of the former one, which an application opts into.
class CleanSwitchTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_repository;

    QString directory(const QString &name) const
    {
        return QDir(text(MOX_SHIPPED_THEMES)).exists(name)
                   ? text(MOX_SHIPPED_THEMES) + QLatin1Char('/') + name
                   : m_repository.path(name);
    }

    void apply(const QString &name) const { BaseTheme(directory(name)).customize(qApp); }

    /// Returns how the window looks in a process that has only seen the theme \a name.
    QImage freshWindow(const QString &name) const
    {
        return freshRendering(text("mixed"), directory(name));
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_repository.addTheme(text("Strange"), strangeConfiguration(),
                              paletteRole("Window", "#ffeecc") + paletteRole("Button", "#ffccaa"));
        m_repository.write(text("Bare/theme.xml"), "<theme><name>Bare</name></theme>");
        m_repository.makeFolder(text("Strange/Images/Strange/scalable"));
        QVERIFY(QFile::copy(text(MOX_TEST_RCC),
                            m_repository.path(text("Strange/Images/Strange/scalable/p.rcc"))));
        qApp->setProperty(MOX_SWITCH_PROPERTY, true);
    }

    void looksLikeAFreshProcess_data()
    {
        QTest::addColumn<QStringList>("themes");
        QTest::newRow("there and back")
            << QStringList{text("Dark"), text("Light"), text("Dark"), text("Light")};
        QTest::newRow("other values, font and images")
            << QStringList{text("Strange"), text("Dark"), text("Strange"), text("Light")};
        QTest::newRow("a theme that defines nothing")
            << QStringList{text("Bare"), text("Strange"), text("Bare"), text("Dark"), text("Bare")};
    }

    void looksLikeAFreshProcess()
    {
        QFETCH(QStringList, themes);
        // A theme that defines nothing leaves placeholders in the stylesheet, which the toolkit
        // tells.
        const MessageRecorder warnings;
        apply(themes.first());
        const std::unique_ptr<QWidget> window = createMixedWindow();
        render(*window);
        for (const QString &name : themes) {
            apply(name);
            QVERIFY2(areEqual(render(*window), freshWindow(name), name), qPrintable(name));
        }
    }

    /// Whoever hears of new fonts may ask for disabled colours between two themes.
    void whatIsAskedForBetweenThemesIsNotKept()
    {
        const QString path = text("colors/DisabledForegroundColor");
        apply(text("Light"));
        const QVariant expected = ThemeResources::getThemeVar(path);
        QVERIFY(expected.isValid());
        apply(text("Strange"));
        int count = 0;
        const auto ask = [&count] {
            ThemeColorHelper::disabled(Qt::red, true);
            ++count;
        };
        connect(qApp, &QGuiApplication::fontDatabaseChanged, this, ask);
        connect(qApp, &QGuiApplication::fontChanged, this, ask);
        apply(text("Light"));
        disconnect(qApp, nullptr, this, nullptr);
        QVERIFY(count > 0);
        QCOMPARE(ThemeResources::getThemeVar(path), expected);
    }

    void themesDiffer()
    {
        QVERIFY(freshWindow(text("Dark")) != freshWindow(text("Light")));
        QVERIFY(freshWindow(text("Dark")) != freshWindow(text("Strange")));
        QVERIFY(freshWindow(text("Bare")) != freshWindow(text("Strange")));
    }

    void hundredSwitchesLeaveNothingBehind()
    {
        const QStringList themes{text("Dark"), text("Light")};
        const QVector<QImage> expected{freshWindow(themes[0]), freshWindow(themes[1])};
        apply(themes[0]);
        const std::unique_ptr<QWidget> window = createMixedWindow();
        QVector<InstalledPaths> paths(2);
        size_t warmMemory = 0;
        for (int i = 0; i < 100; ++i) {
            const int theme = i % 2;
            apply(themes[theme]);
            QVERIFY2(areEqual(render(*window), expected[theme], themes[theme]),
                     qPrintable(themes[theme]));
            if (i < 2) {
                paths[theme] = InstalledPaths();
            }
            QVERIFY(paths[theme] == InstalledPaths());
            if (i == 41) {
                warmMemory = mallinfo2().uordblks;
            }
        }
        // The toolkit's pixmap cache keeps the keys of what it has dropped, some 14 kB for a switch
        // of this window. A theme's variables take 500 kB: had they stayed but twice, it would
        // show.
        const auto growth = static_cast<qint64>(mallinfo2().uordblks - warmMemory);
        QVERIFY2(growth < 1024 * qint64(1024), qPrintable(text("grown by %1 bytes").arg(growth)));
        QCOMPARE(qApp->findChildren<BaseStyle *>().size(), 1);
    }

    void keptValuesAreDropped()
    {
        apply(text("Dark"));
        const QColor grey(200, 180, 160);
        const QFont font = ThemeResources::getFont(text("large"));
        const QBrush border = BaseStyle::getBorderBrush(true);
        const QColor disabled = ThemeColorHelper::disabled(grey, true);
        QVERIFY(ThemeResources::getColor(text("MainColor")).isValid());
        apply(text("Strange"));
        QCOMPARE(ThemeResources::getColor(text("MainColor")), QColor(0xaa, 0x22, 0x66));
        QCOMPARE(ThemeResources::getBrush(text("MainBrush")), QBrush(QColor(0xaa, 0x22, 0x66)));
        QCOMPARE(ThemeResources::getFont(text("large")).pointSize(), 15);
        QCOMPARE(ThemeResources::getOpacity(text("RubberBandOpacity")), 0.75);
        QCOMPARE(ThemeResources::getCornerRadius(text("BaseSize")), 9.0);
        QCOMPARE(ThemeResources::getDisabledFactor(text("LightForegroundDisableFactor")), 300);
        QCOMPARE(ThemeColorHelper::disabled(grey, true), grey.darker(300));
        QCOMPARE(BaseStyle::getBorderBrush(true).color(), QColor(0xff, 0xee, 0xcc));
        QCOMPARE(BaseStyle::getBorderBrush(false).color(), QColor(0xcc, 0xaa, 0x88));
        QCOMPARE(BaseStyle().grooveBackgroundBrush(true).color(), QColor(0xee, 0xcc, 0xaa));
        QCOMPARE(BaseStyle().grooveBackgroundBrush(false).color(), QColor(0xaa, 0x22, 0x66));
        QVERIFY(!ThemeResources::getColor(text("ForegroundColor")).isValid());
        apply(text("Dark"));
        QCOMPARE(ThemeResources::getFont(text("large")), font);
        QCOMPARE(BaseStyle::getBorderBrush(true), border);
        QCOMPARE(ThemeColorHelper::disabled(grey, true), disabled);
    }

    void valuesFromBeforeTheFirstThemeAreDropped()
    {
        QVERIFY(!ThemeResources::getColor(text("MainColor")).isValid());
        apply(text("Strange"));
        QCOMPARE(ThemeResources::getColor(text("MainColor")), QColor(0xaa, 0x22, 0x66));
    }

    void factorsOfTheFormerThemeAreForgotten()
    {
        apply(text("Strange"));
        QVERIFY(qApp->property("theme_var_internal").isValid());
        apply(text("Bare"));
        QVERIFY(!qApp->property("theme_var_internal").isValid());
        QCOMPARE(ThemeColorHelper::disabled(QColor(200, 180, 160), true), QColor(200, 180, 160));
    }

    void whatThemesInstalledIsTakenBack()
    {
        QDir::addSearchPath(text("icons"), text("/own/icons"));
        const QStringList ownIconThemes = QIcon::themeSearchPaths() << text("/own/themes");
        QIcon::setThemeSearchPaths(ownIconThemes);
        apply(text("Dark"));
        QDir::addSearchPath(text("icons"), text("/own/late"));
        QVERIFY(!QFontDatabase::applicationFontFamilies(0).isEmpty());
        apply(text("Strange"));
        QVERIFY(QFile::exists(text(":/Icons/test_pictures/dot.svg")));
        QCOMPARE(QDir::searchPaths(text("icons")),
                 QStringList({text("/own/icons"), text("/own/late"),
                              directory(text("Strange")) + text("/Images/Strange/scalable"),
                              text(":/Icons")}));
        QCOMPARE(QDir::searchPaths(text("resources")).size(), 1);
        QCOMPARE(QIcon::themeSearchPaths(),
                 ownIconThemes + QStringList{directory(text("Strange")) + text("/Images/")});
        QCOMPARE(QIcon::fallbackSearchPaths().count(text(":/icons")), 1);
        QCOMPARE(QFontDatabase::applicationFontFamilies(0), QStringList());
        apply(text("Bare"));
        QVERIFY(!QFile::exists(text(":/Icons/test_pictures/dot.svg")));
    }

    void optingInLaterTakesEverythingBack()
    {
        qApp->setProperty(MOX_SWITCH_PROPERTY, false);
        for (const char *name : {"Dark", "Light", "Strange"}) {
            apply(text(name));
        }
        QCOMPARE(QDir::searchPaths(text("icons")).size(), 6);
        qApp->setProperty(MOX_SWITCH_PROPERTY, true);
        apply(text("Light"));
        QCOMPARE(QDir::searchPaths(text("icons")).size(), 2);
        QCOMPARE(QIcon::fallbackSearchPaths().count(text(":/icons")), 1);
        const std::unique_ptr<QWidget> window = createMixedWindow();
        QVERIFY(areEqual(render(*window), freshWindow(text("Light")), text("Light")));
    }

    void themeThatCannotBeReadChangesNothing()
    {
        apply(text("Dark"));
        const QVariant variables = qApp->property("theme_var");
        const InstalledPaths paths;
        const QStyle *style = QApplication::style();
        apply(text("NoSuchTheme"));
        QCOMPARE(qApp->property("theme_var"), variables);
        QVERIFY(paths == InstalledPaths());
        QCOMPARE(QApplication::style(), style);
    }

    void withoutThePropertyThemesAddUp()
    {
        qApp->setProperty(MOX_SWITCH_PROPERTY, QVariant());
        apply(text("Dark"));
        const QColor main = ThemeResources::getColor(text("MainColor"));
        apply(text("Strange"));
        QCOMPARE(ThemeResources::getColor(text("MainColor")), main);
        QCOMPARE(QDir::searchPaths(text("icons")).size(), 4);
        QCOMPARE(QIcon::fallbackSearchPaths().count(text(":/icons")), 2);
        QVERIFY(!QFontDatabase::applicationFontFamilies(0).isEmpty());
    }

    void theApplicationsOwnIsLeftAlone()
    {
        // A theme that defines nothing leaves placeholders in the stylesheet, which the toolkit
        // tells.
        const MessageRecorder warnings;
        apply(text("Dark"));
        QLineEdit edit;
        QLabel label;
        QComboBox box;
        QObject filter;
        QPalette palette = edit.palette();
        palette.setColor(QPalette::Base, QColor(1, 2, 3));
        edit.setPalette(palette);
        edit.setFont(QFont(text("DejaVu Sans"), 21));
        edit.installEventFilter(&filter);
        auto *delegate = new QStyledItemDelegate(&box);
        box.setItemDelegate(delegate);
        QApplication::setFont(QFont(text("DejaVu Sans"), 19), "QLabel");
        label.setStyleSheet(text("color: #123456"));
        for (QWidget *widget : QWidgetList{&edit, &label, &box}) {
            widget->show();
        }
        for (const char *name : {"Light", "Strange", "Bare", "Dark"}) {
            apply(text(name));
            QCOMPARE(edit.palette().color(QPalette::Base), QColor(1, 2, 3));
            QCOMPARE(edit.palette().color(QPalette::Text),
                     QApplication::palette().color(QPalette::Text));
            QCOMPARE(edit.font().pointSize(), 21);
            QCOMPARE(box.itemDelegate(), delegate);
            QCOMPARE(QApplication::font("QLabel").pointSize(), 19);
            QCOMPARE(label.font().pointSize(), 19);
            QCOMPARE(label.styleSheet(), text("color: #123456"));
            QCOMPARE(label.palette().color(QPalette::WindowText), QColor(0x12, 0x34, 0x56));
        }
    }

    void eventFiltersKeepWorking()
    {
        class Counter : public QObject
        {
        public:
            int paints = 0;
            bool eventFilter(QObject * /*watched*/, QEvent *event) override
            {
                paints += event->type() == QEvent::Paint ? 1 : 0;
                return false;
            }
        };
        apply(text("Dark"));
        Counter counter;
        QLineEdit edit;
        edit.installEventFilter(&counter);
        render(edit);
        apply(text("Light"));
        counter.paints = 0;
        render(edit);
        QVERIFY(counter.paints > 0);
    }
};

QTEST_MAIN(CleanSwitchTest)
#include "CleanSwitchTest.moc"
