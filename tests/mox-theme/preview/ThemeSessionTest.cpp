#include <resources/ThemeColorHelper.h>
#include <resources/ThemeResources.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <preview/ThemeSession.h>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::ThemeColorHelper;
using TARN::ThemeResources;
using TARN::ThemeTool::ThemeSession;

namespace {

const QByteArray factors = "<Factor name='LightBackgroundDisableFactor'>140</Factor>"
                           "<Factor name='DarkBackgroundDisableFactor'>150</Factor>"
                           "<Factor name='LightForegroundDisableFactor'>160</Factor>"
                           "<Factor name='DarkForegroundDisableFactor'>170</Factor>";

QColor windowColor()
{
    return QApplication::palette().color(QPalette::Window);
}

} // namespace

/// How a theme that is being worked on is applied, or is not.
class ThemeSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsAppliedAtFirst();
    void theThemeIsApplied();
    void aThemeWithoutANameHasItsFolders();
    void nothingOfTheFormerStateStays();
    void brokenFilesAreRefused_data();
    void brokenFilesAreRefused();
    void aBrokenFirstThemeLeavesTheApplicationAlone();
    void refusedFactorsAreNotPublished();

private:
    void writeTheme(const QByteArray &windowColor, const QByteArray &colors = {});

    ThemeRepository m_repository;
    QString m_theme;
};

void ThemeSessionTest::init()
{
    writeTheme("#102030");
}

void ThemeSessionTest::writeTheme(const QByteArray &windowColor, const QByteArray &colors)
{
    ThemeConfiguration configuration;
    configuration.factors = factors;
    configuration.colors = "<Color name='Ground'>" + windowColor + "</Color>" + colors;
    m_theme = m_repository.addTheme(text("Probe"), configuration, paletteRole("Window", "@Ground"));
}

void ThemeSessionTest::nothingIsAppliedAtFirst()
{
    const ThemeSession session(*qApp, m_theme);
    QVERIFY(!qApp->property("theme_var").isValid());
    QVERIFY(windowColor() != QColor(0x10, 0x20, 0x30));
}

void ThemeSessionTest::theThemeIsApplied()
{
    MessageRecorder messages;
    ThemeSession session(*qApp, m_theme);
    QVERIFY(session.apply());
    QCOMPARE(session.problem(), QString());
    QCOMPARE(session.themeName(), text("Probe"));
    QCOMPARE(windowColor(), QColor(0x10, 0x20, 0x30));
    QCOMPARE(messages.take(), QStringList());
}

void ThemeSessionTest::aThemeWithoutANameHasItsFolders()
{
    m_repository.write(text("Probe/theme.xml"), "<theme/>");
    ThemeSession session(*qApp, m_theme);
    QVERIFY(session.apply());
    QCOMPARE(session.themeName(), text("Probe"));
}

void ThemeSessionTest::nothingOfTheFormerStateStays()
{
    writeTheme("#102030", "<Color name='Passing'>#445566</Color>");
    ThemeSession session(*qApp, m_theme);
    QVERIFY(session.apply());
    QCOMPARE(ThemeResources::getColor(text("Passing")), QColor(0x44, 0x55, 0x66));
    writeTheme("#405060");
    QVERIFY(session.apply());
    QCOMPARE(windowColor(), QColor(0x40, 0x50, 0x60));
    QVERIFY(!ThemeResources::getColor(text("Passing")).isValid());
}

void ThemeSessionTest::brokenFilesAreRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content"); // null: none
    QTest::addColumn<QString>("problem");
    QTest::newRow("missing description") << "theme.xml" << QByteArray() << "is missing";
    QTest::newRow("torn description")
        << "theme.xml" << QByteArray("<theme><name>\n") << "theme.xml, line 2: ";
    QTest::newRow("missing configuration") << "config.xml" << QByteArray() << "is missing";
    QTest::newRow("torn configuration")
        << "config.xml" << QByteArray("<Config>\n<Palette>\n</Config>") << "config.xml, line 3: ";
    QTest::newRow("empty configuration")
        << "config.xml" << QByteArray("") << "config.xml, line 1: ";
    QTest::newRow("faulty colour")
        << "config.xml"
        << QByteArray("<Config><Palette><ColorsList><Color name='Ground'>greyish</Color>"
                      "</ColorsList></Palette></Config>")
        << "config.xml holds an entry that cannot be read";
    QTest::newRow("missing mapping") << "qpaletteMapping.xml" << QByteArray() << "is missing";
    QTest::newRow("torn mapping") << "qpaletteMapping.xml" << QByteArray("<QPalette")
                                  << "qpaletteMapping.xml, line 1: ";
    QTest::newRow("faulty role") << "qpaletteMapping.xml"
                                 << QByteArray("<QPalette>" + paletteRole("Window", "@Nothing") +
                                               "</QPalette>")
                                 << "qpaletteMapping.xml holds an entry that cannot be read";
}

void ThemeSessionTest::brokenFilesAreRefused()
{
    QFETCH(const QString, file);
    QFETCH(const QByteArray, content);
    QFETCH(const QString, problem);
    ThemeSession session(*qApp, m_theme);
    QVERIFY(session.apply());
    const QVariant variables = qApp->property("theme_var");

    QVERIFY(QFile::remove(m_theme + u'/' + file));
    if (!content.isNull()) {
        m_repository.write(text("Probe/") + file, content);
    }
    MessageRecorder messages;
    QVERIFY(!session.apply());
    QVERIFY2(session.problem().startsWith(file), qPrintable(session.problem()));
    QVERIFY2(session.problem().contains(problem), qPrintable(session.problem()));
    QVERIFY(!session.problem().contains(u'\n'));
    QCOMPARE(messages.take(), QStringList());
    QCOMPARE(session.themeName(), text("Probe"));
    QCOMPARE(windowColor(), QColor(0x10, 0x20, 0x30));
    QCOMPARE(qApp->property("theme_var"), variables);

    writeTheme("#708090");
    QVERIFY(session.apply());
    QCOMPARE(session.problem(), QString());
    QCOMPARE(windowColor(), QColor(0x70, 0x80, 0x90));
}

void ThemeSessionTest::aBrokenFirstThemeLeavesTheApplicationAlone()
{
    m_repository.write(text("Probe/qpaletteMapping.xml"), "<QPalette");
    const QPalette palette = QApplication::palette();
    ThemeSession session(*qApp, m_theme);
    QVERIFY(!session.apply());
    QCOMPARE(QApplication::palette(), palette);
    QVERIFY(!qApp->property("theme_var").isValid());
    QVERIFY(!qApp->property("theme_var_internal").isValid());

    writeTheme("#102030");
    QVERIFY(session.apply());
    // Not those of the refused theme, which had none when they were first looked at.
    QCOMPARE(ThemeResources::getDisabledFactor(text("LightForegroundDisableFactor")), 160);
}

void ThemeSessionTest::refusedFactorsAreNotPublished()
{
    ThemeSession session(*qApp, m_theme);
    QVERIFY(session.apply());
    const QColor disabled = ThemeColorHelper::disabled(Qt::white, true);
    const QVariant published = qApp->property("theme_var_internal");
    QVERIFY(published.isValid());

    m_repository.write(text("Probe/config.xml"),
                       "<Config><Factors><Factor name='LightForegroundDisableFactor'>333"
                       "</Factor></Factors><Palette><ColorsList><Color name='Ground'>greyish"
                       "</Color></ColorsList></Palette></Config>");
    QVERIFY(!session.apply());
    QCOMPARE(qApp->property("theme_var_internal"), published);
    QCOMPARE(ThemeColorHelper::disabled(Qt::white, true), disabled);
    QCOMPARE(ThemeResources::getDisabledFactor(text("LightForegroundDisableFactor")), 160);
}

QTEST_MAIN(ThemeSessionTest)
#include "ThemeSessionTest.moc"
