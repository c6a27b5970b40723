#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMessageBox>

#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::BaseTheme;

namespace {

/// Adds to \a files the theme \a name, whose icon theme tells of information in \a color.
void addIconTheme(const ThemeRepository &files, const QString &name, const QColor &color)
{
    files.addTheme(name);
    const QString folder = name + text("/Images/") + name;
    files.write(folder + text("/index.theme"),
                "[Icon Theme]\nName=Own\nDirectories=scalable\n\n[scalable]\nSize=16\n"
                "Type=Scalable\nMinSize=8\nMaxSize=256\n");
    files.makeFolder(folder + text("/scalable"));
    QPixmap pixmap(64, 64);
    pixmap.fill(color);
    QVERIFY(pixmap.save(files.path(folder + text("/scalable/dialog-information.png"))));
}

QColor centre(const QPixmap &pixmap)
{
    return pixmap.toImage().pixelColor(pixmap.rect().center());
}

/// Records which icon theme is current whenever a widget hears that the style has changed.
class StyleChanges : public QObject
{
public:
    explicit StyleChanges(QWidget &widget) { widget.installEventFilter(this); }

    const QStringList &iconThemes() const { return m_iconThemes; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange) {
            m_iconThemes.append(QIcon::themeName());
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QStringList m_iconThemes;
};

} // namespace

/// The icons that widgets fetch from their style, after a clean switch of themes.
class FetchedIconsTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_repository;

    static void applyShipped(const char *name)
    {
        BaseTheme(text(MOX_SHIPPED_THEMES) + QLatin1Char('/') + text(name)).customize(qApp);
    }

private Q_SLOTS:
    /// Without a new style nothing has widgets fetch icons by themselves.
    void nativeStyleShowsTheIconsOfTheTheme()
    {
        qputenv("TARN_USE_NATIVE_STYLE", "1");
        qApp->setProperty("appLiveThemeSwitch", true);
        addIconTheme(m_repository, text("Red"), Qt::red);
        addIconTheme(m_repository, text("Blue"), Qt::blue);
        BaseTheme(m_repository.path(text("Red"))).customize(qApp);
        QMessageBox box(QMessageBox::Information, text("Title"), text("Text"));
        QCOMPARE(centre(box.iconPixmap()), QColor(Qt::red));
        BaseTheme(m_repository.path(text("Blue"))).customize(qApp);
        QCOMPARE(centre(box.iconPixmap()), QColor(Qt::blue));
    }

    void aMessageFromBeforeTheFirstThemeShowsTheIconsOfTheTheme_data()
    {
        QTest::addColumn<bool>("native");
        QTest::newRow("the theme's style") << false;
        QTest::newRow("the native style") << true;
    }

    void aMessageFromBeforeTheFirstThemeShowsTheIconsOfTheTheme()
    {
        QFETCH(bool, native);
        if (native) {
            qputenv("TARN_USE_NATIVE_STYLE", "1");
        }
        qApp->setProperty("appLiveThemeSwitch", true);
        for (const auto icon : {QMessageBox::Information, QMessageBox::Warning,
                                QMessageBox::Critical, QMessageBox::Question}) {
            QMessageBox box(icon, text("Title"), text("Text"));
            box.show();
            for (const char *theme : {"Dark", "Light"}) {
                applyShipped(theme);
                const QMessageBox late(icon, text("Title"), text("Text"));
                QVERIFY(!box.iconPixmap().isNull());
                QCOMPARE(box.iconPixmap().toImage(), late.iconPixmap().toImage());
            }
        }
    }

    /// Widgets that hear of a new style are not told of it once more.
    void widgetsAreNotToldOfTheStyleAgain()
    {
        qApp->setProperty("appLiveThemeSwitch", true);
        applyShipped("Dark");
        QMessageBox box(QMessageBox::Information, text("Title"), text("Text"));
        QDockWidget dock;
        QWidget plain;
        const StyleChanges boxChanges(box);
        const StyleChanges dockChanges(dock);
        const StyleChanges plainChanges(plain);
        applyShipped("Light");
        QVERIFY(!plainChanges.iconThemes().isEmpty());
        QCOMPARE(boxChanges.iconThemes(), plainChanges.iconThemes());
        QCOMPARE(dockChanges.iconThemes(), plainChanges.iconThemes());
    }

    void imagesComeBeforeTheStyleOfACleanSwitchOnly_data()
    {
        QTest::addColumn<bool>("clean");
        QTest::addColumn<QString>("iconTheme");
        QTest::newRow("clean") << true << text("Light");
        QTest::newRow("by default") << false << text("Dark");
    }

    void imagesComeBeforeTheStyleOfACleanSwitchOnly()
    {
        QFETCH(bool, clean);
        QFETCH(QString, iconTheme);
        applyShipped("Dark");
        qApp->setProperty("appLiveThemeSwitch", clean);
        QWidget widget;
        const StyleChanges changes(widget);
        applyShipped("Light");
        QCOMPARE(changes.iconThemes().last(), iconTheme);
        QCOMPARE(QIcon::themeName(), text("Light"));
    }
};

QTEST_MAIN(FetchedIconsTest)
#include "FetchedIconsTest.moc"
