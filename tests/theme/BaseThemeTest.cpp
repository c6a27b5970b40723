#include <readers/ThemeFont.h>
#include <resources/ThemeColorHelper.h>
#include <resources/ThemeResources.h>
#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>

#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::BaseStyle;
using TARN::BaseTheme;
using TARN::ThemeColorHelper;

namespace {

/// Returns the theme's style below the stylesheet style of the application; null when none is
/// installed.
const BaseStyle *installedStyle()
{
    return QApplication::style()->findChild<BaseStyle *>();
}

} // namespace

/// What applying a theme does to an application.
class BaseThemeTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_repository;

    QString addTheme(const QByteArray &roles = {}) const
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='DarkForegroundDisableFactor'>150</Factor>"
                                "<Factor name='DarkBackgroundDisableFactor'>200</Factor>"
                                "<Factor name='LightForegroundDisableFactor'>120</Factor>"
                                "<Factor name='LightBackgroundDisableFactor'>130</Factor>";
        configuration.colors = "<Color name='MainColor'>#112233</Color>"
                               "<Color name='Secret' internal='true'>#445566</Color>"
                               "<Color name='BackgroundSubLevel1Color'>#010203</Color>";
        configuration.brushes = "<SolidBrush name='MainBrush'>MainColor</SolidBrush>";
        configuration.opacities = "<Opacity name='Veil'>0.5</Opacity>";
        return m_repository.addTheme(text("Test"), configuration, roles);
    }

    static QVariantMap group(const char *name)
    {
        return qApp->property("theme_var").toMap().value(text(name)).toMap();
    }

private Q_SLOTS:
    void cleanup() { qunsetenv("TARN_USE_NATIVE_STYLE"); }

    void nullApplicationIsIgnored()
    {
        MessageRecorder messages;
        BaseTheme(addTheme()).customize(nullptr);
        QCOMPARE(messages.take(), QStringList());
    }

    void missingDescription()
    {
        BaseTheme theme(m_repository.makeFolder(text("None")));
        QCOMPARE(theme.getName(), QString());
        const QStyle *style = QApplication::style();
        const QPalette palette = QApplication::palette();
        MessageRecorder messages;
        theme.customize(qApp);
        QCOMPARE(messages.take(),
                 QStringList{text("Error reading theme configuration file  \"%1/theme.xml\"")
                                 .arg(m_repository.path(text("None")))});
        QCOMPARE(QApplication::style(), style);
        QCOMPARE(QApplication::palette(), palette);
        QVERIFY(!qApp->property("theme_var").isValid());
        QVERIFY(!qApp->property("theme_var_internal").isValid());
        QVERIFY(QDir::searchPaths(text("icons")).isEmpty());
    }

    void malformedDescriptionNamesButAppliesNothing()
    {
        const QString directory = addTheme();
        m_repository.write(text("Test/theme.xml"), "<theme><name>Test</name>");
        BaseTheme theme(directory);
        QCOMPARE(theme.getName(), text("Test"));
        MessageRecorder messages;
        theme.customize(qApp);
        QCOMPARE(messages.take().size(), 1);
        QVERIFY(!qApp->property("theme_var").isValid());
        QVERIFY(!installedStyle());
        QVERIFY(QDir::searchPaths(text("icons")).isEmpty());
        QVERIFY(QApplication::font().pointSize() != 9);
    }

    void descriptionIsReadOnce()
    {
        const QString directory = addTheme();
        BaseTheme theme(directory);
        QVERIFY(QFile::remove(directory + text("/theme.xml")));
        MessageRecorder messages;
        theme.customize(qApp);
        QCOMPARE(messages.take(), QStringList());
        QCOMPARE(theme.getName(), text("Test"));
        QVERIFY(installedStyle());
    }

    void otherRootAppliesWithoutName()
    {
        const QString directory = addTheme();
        m_repository.write(text("Test/theme.xml"), "<other><name>Test</name></other>");
        BaseTheme theme(directory);
        QCOMPARE(theme.getName(), QString());
        theme.customize(qApp);
        QCOMPARE(QDir::searchPaths(text("icons")).constFirst(),
                 directory + text("/Images//scalable"));
        QCOMPARE(QIcon::themeName(), QString());
    }

    void variablesArePublished()
    {
        BaseTheme(addTheme()).customize(qApp);
        const QVariantMap variables = qApp->property("theme_var").toMap();
        QCOMPARE(variables.keys(),
                 QStringList({text("brushes"), text("colors"), text("cornerRadius"), text("fonts"),
                              text("internalBrushes"), text("internalColors"), text("opacities")}));
        QCOMPARE(group("colors").value(text("MainColor")), QVariant(QColor(0x11, 0x22, 0x33)));
        QCOMPARE(group("colors").value(text("Secret")), QVariant(QColor(0x44, 0x55, 0x66)));
        QCOMPARE(group("internalColors").keys(),
                 QStringList({text("DisabledBackgroundSubLevel1Color"), text("DisabledMainColor"),
                              text("DisabledSecret"), text("Secret")}));
        QCOMPARE(group("brushes").value(text("MainBrush")).value<QBrush>(),
                 QBrush(QColor(0x11, 0x22, 0x33)));
        QCOMPARE(group("internalBrushes").keys(), QStringList{text("DisabledMainBrush")});
        QCOMPARE(group("opacities").value(text("Veil")).userType(), int(QMetaType::Double));
        QCOMPARE(group("cornerRadius").value(text("BaseSize")).userType(), int(QMetaType::Int));
        QCOMPARE(group("cornerRadius").value(text("BaseSize")), QVariant(4));
        QCOMPARE(group("fonts").value(text("large")).value<QFont>().pointSize(), 12);
        QCOMPARE(qApp->property("theme_var_internal").toMap().keys(), QStringList{text("factors")});
    }

    void faultyConfigurationIsAppliedAsFarAsRead()
    {
        ThemeConfiguration configuration;
        configuration.colors = "<Color name='A'>#010203</Color><Color name='A'>#010203</Color>";
        const QString directory = m_repository.addTheme(text("Faulty"), configuration);
        MessageRecorder messages;
        BaseTheme(directory).customize(qApp);
        QCOMPARE(messages.take(),
                 QStringList{
                     text("Error reading theme palette file:  \"%1/palette.xml\"").arg(directory)});
        QCOMPARE(group("colors").value(text("A")), QVariant(QColor(1, 2, 3)));
        QVERIFY(installedStyle());
    }

    void faultyMappingIsAppliedAsFarAsRead()
    {
        const QString directory =
            addTheme(paletteRole("Window", "#0a0b0c") + paletteRole("Nonsense", "#010101"));
        MessageRecorder messages;
        BaseTheme(directory).customize(qApp);
        QCOMPARE(messages.take(),
                 QStringList{
                     text("Error reading theme QPalette mapping file:  \"%1/qpaletteMapping.xml\"")
                         .arg(directory)});
        QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(10, 11, 12));
    }

    void messagesComeInOrder()
    {
        const QString directory = addTheme();
        QVERIFY(QFile::remove(directory + text("/config.xml")));
        QVERIFY(QFile::remove(directory + text("/qpaletteMapping.xml")));
        MessageRecorder messages;
        BaseTheme(directory).customize(qApp);
        const QStringList recorded = messages.take();
        QCOMPARE(recorded.size(), 2);
        QVERIFY(recorded[0].startsWith(text("Error reading theme palette file: ")));
        QVERIFY(recorded[1].startsWith(text("Error reading theme QPalette mapping file: ")));
    }

    void faultsAreDebugMessages()
    {
        const QString broken = m_repository.makeFolder(text("Broken"));
        const QString faulty = addTheme(paletteRole("Nonsense", "#010101"));
        QVERIFY(QFile::remove(faulty + text("/config.xml")));
        for (const QString &message :
             {text("configuration file  \"") + broken + text("/theme.xml\""),
              text("palette file:  \"") + faulty + text("/palette.xml\""),
              text("QPalette mapping file:  \"") + faulty + text("/qpaletteMapping.xml\"")}) {
            QTest::ignoreMessage(QtDebugMsg, qPrintable(text("Error reading theme ") + message));
        }
        BaseTheme(broken).customize(qApp);
        BaseTheme(faulty).customize(qApp);
    }

    void paletteIsBasedOnTheApplications()
    {
        QPalette own = QApplication::palette();
        own.setColor(QPalette::Mid, QColor(7, 7, 7));
        QApplication::setPalette(own);
        BaseTheme(addTheme(paletteRole("Window", "@MainColor"))).customize(qApp);
        const QPalette palette = installedStyle()->getPalette();
        QCOMPARE(palette.color(QPalette::Window), QColor(0x11, 0x22, 0x33));
        QCOMPARE(palette.color(QPalette::Mid), QColor(7, 7, 7));
        QCOMPARE(QToolTip::palette().color(QPalette::Active, QPalette::Window),
                 QColor(0x11, 0x22, 0x33));
    }

    void disabledColorsAreDerived()
    {
        const QByteArray dark = "#202020";
        BaseTheme(addTheme(paletteRole("WindowText", dark) + paletteRole("Window", dark) +
                           paletteRole("Base", dark) + paletteRole("ButtonText", dark) +
                           paletteRole("Link", dark, "Active") + paletteRole("LinkVisited", dark) +
                           paletteRole("PlaceholderText", dark) + paletteRole("Button", dark) +
                           paletteRole("Shadow", "#123456", "Disabled") +
                           paletteRole("Shadow", "#e0e0e0", "Active")))
            .customize(qApp);
        const QPalette palette = installedStyle()->getPalette();
        const QColor color(0x20, 0x20, 0x20);
        const auto disabled = [&palette](QPalette::ColorRole role) {
            return palette.color(QPalette::Disabled, role);
        };
        for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Link,
                                QPalette::LinkVisited, QPalette::PlaceholderText}) {
            QCOMPARE(disabled(role), color.lighter(150));
        }
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
            QCOMPARE(disabled(role), color.lighter(200));
        }
        // The file's own disabled brush gives way to the derived one.
        QCOMPARE(disabled(QPalette::Shadow), QColor(0xe0, 0xe0, 0xe0).darker(130));
        QCOMPARE(palette.brush(QPalette::Disabled, QPalette::Shadow).style(), Qt::SolidPattern);
    }

    void everyRoleGetsADisabledColor()
    {
        BaseTheme(addTheme()).customize(qApp);
        const QPalette palette = installedStyle()->getPalette();
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
            const QByteArray name = roles.valueToKey(role);
            const bool foreground = name.contains("Text") || name.contains("Link");
            QCOMPARE(palette.color(QPalette::Disabled, role),
                     ThemeColorHelper::disabled(palette.color(QPalette::Active, role), foreground));
        }
    }

    void styleSheetIsSubstituted()
    {
        BaseTheme(addTheme()).customize(qApp);
        const QString styleSheet = qApp->styleSheet();
        QVERIFY(styleSheet.contains(text("selection-background-color: #112233")));
        QVERIFY(styleSheet.contains(text("min-height: 18px")));
        QVERIFY(styleSheet.contains(text("1px solid #010203")));
        // What the theme lacks stays a placeholder.
        QVERIFY(styleSheet.contains(text("@colors/BackgroundUpLevel1Color@")));
    }

    void styleSheetsOfTheThemeAreNotRead()
    {
        m_repository.write(text("Test/stylesheets/own.qss"), "QWidget { color: red }");
        m_repository.write(text("Test/own.qss"), "QWidget { color: red }");
        BaseTheme(addTheme()).customize(qApp);
        QVERIFY(!qApp->styleSheet().contains(text("color: red }")));
    }

    void fontIsSet()
    {
        BaseTheme(addTheme()).customize(qApp);
        QCOMPARE(QApplication::font(), QFont(text("DejaVu Sans"), 9));
    }

    void nativeStyle_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("set") << QByteArray("1");
    }

    void nativeStyle()
    {
        QFETCH(QByteArray, value);
        qputenv("TARN_USE_NATIVE_STYLE", value);
        const QStyle *style = QApplication::style();
        const QPalette palette = QApplication::palette();
        const QPalette toolTip = QToolTip::palette();
        const int iconPaths = QDir::searchPaths(text("icons")).size();
        const QString directory = addTheme(paletteRole("Nonsense", "#010101"));
        MessageRecorder messages;
        BaseTheme(directory).customize(qApp);
        // Nobody asks for the mapping then, so its fault is not worth a message.
        QCOMPARE(messages.take(), QStringList());
        QCOMPARE(QApplication::style(), style);
        QCOMPARE(QApplication::palette(), palette);
        QCOMPARE(QToolTip::palette(), toolTip);
        QCOMPARE(qApp->styleSheet(), QString());
        QCOMPARE(group("colors").value(text("MainColor")), QVariant(QColor(0x11, 0x22, 0x33)));
        QCOMPARE(QApplication::font().pointSize(), 9);
        QCOMPARE(QDir::searchPaths(text("icons")).size(), iconPaths + 2);
        QVERIFY(
            QDir::searchPaths(text("cursors")).contains(directory + text("/Images/Test/Cursors")));
        QCOMPARE(QIcon::themeName(), text("Test"));
        QVERIFY(qApp->property("theme_var_internal").isValid());
    }

    void secondThemeReplacesWhatIsNotKept()
    {
        ThemeConfiguration first;
        first.colors = "<Color name='A'>#010101</Color>";
        ThemeConfiguration second;
        second.colors = "<Color name='B'>#020202</Color>";
        second.font.replace("<BaseSize>9", "<BaseSize>14");
        BaseTheme(m_repository.addTheme(text("A"), first, paletteRole("Base", "#030303")))
            .customize(qApp);
        QCOMPARE(TARN::ThemeResources::getColor(text("A")), QColor(1, 1, 1));
        const QPointer<const QStyle> former = QApplication::style();
        BaseTheme(m_repository.addTheme(text("B"), second, paletteRole("Mid", "#040404")))
            .customize(qApp);
        QVERIFY(!former);
        QCOMPARE(group("colors").keys(), QStringList({text("B"), text("DisabledB")}));
        QCOMPARE(QApplication::font().pointSize(), 14);
        // The second palette builds on the first, and kept values stay.
        QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(3, 3, 3));
        QCOMPARE(QApplication::palette().color(QPalette::Mid), QColor(4, 4, 4));
        QCOMPARE(TARN::ThemeResources::getColor(text("A")), QColor(1, 1, 1));
        QVERIFY(!TARN::ThemeResources::getColor(text("B")).isValid());
    }

    void secondThemeReplacesStyleSheetAndToolTips()
    {
        ThemeConfiguration first;
        first.colors = "<Color name='MainColor'>#010101</Color>";
        ThemeConfiguration second;
        second.colors = "<Color name='MainColor'>#020202</Color>";
        const QByteArray role = paletteRole("ToolTipBase", "@MainColor");
        BaseTheme(m_repository.addTheme(text("A"), first, role)).customize(qApp);
        BaseTheme(m_repository.addTheme(text("B"), second, role)).customize(qApp);
        QVERIFY(qApp->styleSheet().contains(text("#020202")));
        QVERIFY(!qApp->styleSheet().contains(text("#010101")));
        QCOMPARE(qApp->styleSheet().count(text("min-height: 18px")), 1);
        QCOMPARE(QToolTip::palette().color(QPalette::Active, QPalette::ToolTipBase),
                 QColor(2, 2, 2));
    }

    void factorsOfTheFirstThemeStayInForce()
    {
        const QByteArray name = "<Factor name='DarkBackgroundDisableFactor'>";
        ThemeConfiguration configuration;
        configuration.colors = "<Color name='A'>#202020</Color>";
        configuration.factors = name + "200</Factor>";
        BaseTheme(m_repository.addTheme(text("A"), configuration)).customize(qApp);
        configuration.factors = name + "300</Factor>";
        BaseTheme(m_repository.addTheme(text("B"), configuration)).customize(qApp);
        QCOMPARE(group("colors").value(text("DisabledA")), QVariant(QColor(0x40, 0x40, 0x40)));
        const QVariantMap published = qApp->property("theme_var_internal").toMap();
        QCOMPARE(published.value(text("factors")).toMap().first(), QVariant(300));
    }
};

QTEST_MAIN(BaseThemeTest)
#include "BaseThemeTest.moc"
