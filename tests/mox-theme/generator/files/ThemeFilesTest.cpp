#include <readers/QPaletteReader.h>
#include <readers/ThemeConfigurationReader.h>
#include <theme/BaseThemeSettings.h>

#include <QtCore/QDir>
#include <QtGui/QIcon>
#include <QtTest/QtTest>

#include <generator/files/ThemeWriter.h>
#include <mox-theme/support/SmallTheme.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN;
using namespace TARN::ThemeTool;

namespace {

/// Writes \a theme and returns its folder.
QString written(const ThemeRepository &repository, const ThemeDefinition &theme)
{
    const QString folder = repository.path(text("folder"));
    const QString problem = writeTheme(theme, folder);
    if (!problem.isEmpty()) {
        qFatal("%s", qPrintable(problem));
    }
    return folder;
}

QString configurationOf(const ThemeDefinition &theme)
{
    const ThemeRepository repository;
    return QString::fromUtf8(filesBelow(written(repository, theme)).value(text("config.xml")));
}

QPalette paletteOf(const QString &folder)
{
    const ThemeConfigurationReader configuration(folder + text("/config.xml"));
    const QPaletteReader reader(folder + text("/qpaletteMapping.xml"),
                                configuration.getBrushesMap(), configuration.getColorsMap(),
                                QPalette(Qt::magenta));
    return reader.getStatus() == 0 ? reader.deserialize() : QPalette();
}

/// Returns a theme that is called \a name in every way.
ThemeDefinition namedTheme(const QString &name)
{
    ThemeDefinition theme = smallTheme();
    theme.name = name;
    theme.description = name;
    theme.font.family = name;
    theme.colors = {{name, {{name, Qt::red}}}};
    theme.brushes = {{name, {{name, name}}}};
    theme.palette = {{name, {{text("Window"), text("All"), name}}}};
    theme.opacities = {{name, 0.5}};
    theme.factors = {{name, 50}};
    return theme;
}

} // namespace

/// What the library reads of the files that are written, and how they look.
class ThemeFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreReadBack();
    void fontsAreReadBack();
    void paletteIsReadBack();
    void specialCharactersAreReadBack_data();
    void specialCharactersAreReadBack();
    void configurationIsLaidOutForPeople();
    void paletteIsLaidOutForPeople();
    void longHeadingsAreWrapped();
    void opacitiesKeepTheirDigits();
    void ownFontsAreWritten();
    void otherFontsAreWritten();
    void givenFontsReplaceOwnOnes();
    void iconsAreThoseOfTheGround_data();
    void iconsAreThoseOfTheGround();
    void iconThemeIsFound();
    void bytesAreTheSame();
};

void ThemeFilesTest::valuesAreReadBack()
{
    const ThemeRepository repository;
    const QString folder = written(repository, smallTheme());
    const BaseThemeSettings settings(folder + text("/theme.xml"));
    QCOMPARE(settings.getStatus(), 0);
    QCOMPARE(settings.getName(), text("Small"));

    const ThemeConfigurationReader reader(folder + text("/config.xml"));
    QCOMPARE(reader.getStatus(), 0);
    for (const auto &section : smallTheme().colors) {
        for (const ColorEntry &entry : section.entries) {
            QCOMPARE(reader.getColorsMap().value(entry.name).rgba(), entry.color.rgba());
        }
    }
    for (const auto &section : smallTheme().brushes) {
        for (const BrushEntry &entry : section.entries) {
            QCOMPARE(reader.getBrushesMap().value(entry.name),
                     QBrush(reader.getColorsMap().value(entry.color)));
        }
    }
    // Each entry and the disabled one that the library derives.
    QCOMPARE(reader.getColorsMap().size(), 2 * 5);
    QCOMPARE(reader.getBrushesMap().size(), 2 * 3);
    const QMap<QString, int> factors = {{text("LightForegroundDisableFactor"), 160},
                                        {text("DarkBackgroundDisableFactor"), 104}};
    QCOMPARE(reader.getDisabledFactorsMap(), factors);
    const QMap<QString, double> opacities = {{text("RubberBandOpacity"), 0.3}};
    QCOMPARE(reader.getOpacitiesMap(), opacities);
    const QMap<QString, int> radii = {{text("SmallSize"), 1},
                                      {text("BaseSize"), 3},
                                      {text("MediumSize"), 5},
                                      {text("LargeSize"), 9}};
    QCOMPARE(reader.getCornerRadiusMap(), radii);
}

void ThemeFilesTest::fontsAreReadBack()
{
    const ThemeRepository repository;
    const QString folder = written(repository, smallTheme());
    const ThemeFont font = ThemeConfigurationReader(folder + text("/config.xml")).getFont();
    const QString family = text("DejaVu Sans");
    QCOMPARE(font.getFont(ThemeFont::Small), QFont(family, 7, QFont::Bold));
    QCOMPARE(font.getFont(ThemeFont::Base), QFont(family, 8, QFont::Bold));
    QCOMPARE(font.getFont(ThemeFont::Medium), QFont(family, 11, QFont::Bold));
    QCOMPARE(font.getFont(ThemeFont::Large), QFont(family, 13, QFont::Bold));
}

void ThemeFilesTest::paletteIsReadBack()
{
    const ThemeRepository repository;
    const QPalette palette = paletteOf(written(repository, smallTheme()));
    QCOMPARE(palette.color(QPalette::Active, QPalette::Window), QColor(0x12, 0x34, 0x56));
    QCOMPARE(palette.color(QPalette::Active, QPalette::Mid), QColor(0x12, 0x34, 0x56));
    QCOMPARE(palette.color(QPalette::Inactive, QPalette::Mid), QColor(0xAB, 0xCD, 0xEF, 0x80));
    QCOMPARE(palette.color(QPalette::Inactive, QPalette::Link), QColor(0x65, 0x43, 0x21));
    QCOMPARE(palette.color(QPalette::Text), QPalette(Qt::magenta).color(QPalette::Text));
}

void ThemeFilesTest::specialCharactersAreReadBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("marks") << text(R"(<R&D> "x" 'y' ]]> &amp;)");
    QTest::newRow("one quotation mark") << text(R"(12" wide)");
    QTest::newRow("comment's end") << text("a --> b ---- c-");
    QTest::newRow("hyphens") << text("x---");
    QTest::newRow("blanks at the ends") << text(" a  b ");
    QTest::newRow("backslash") << text(R"(a\nb\)");
    QTest::newRow("file's own signs") << text("[x]=%1;#%20,");
    QTest::newRow("other writing") << QString::fromUtf8("\u6d77\u6d0b \u00e9\U0001F30A");
}

void ThemeFilesTest::specialCharactersAreReadBack()
{
    QFETCH(const QString, name);
    const ThemeRepository repository;
    const QString folder = written(repository, namedTheme(name));
    QCOMPARE(BaseThemeSettings(folder + text("/theme.xml")).getName(), name);
    const ThemeConfigurationReader reader(folder + text("/config.xml"));
    QCOMPARE(reader.getStatus(), 0);
    QCOMPARE(reader.getColorsMap().value(name), QColor(Qt::red));
    QCOMPARE(reader.getBrushesMap().value(name), QBrush(Qt::red));
    QCOMPARE(reader.getOpacitiesMap().value(name), 0.5);
    QCOMPARE(reader.getDisabledFactorsMap().value(name), 50);
    QCOMPARE(reader.getFont().getFont(ThemeFont::Base).family(), QFont(name).family());
    QCOMPARE(paletteOf(folder).color(QPalette::Window), QColor(Qt::red));

    QIcon::setThemeSearchPaths({folder + text("/Images")});
    QIcon::setThemeName(name);
    QVERIFY(!QIcon::fromTheme(text("edit-delete")).isNull());
}

void ThemeFilesTest::configurationIsLaidOutForPeople()
{
    const QString configuration = configurationOf(smallTheme());
    QVERIFY(configuration.startsWith(text("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                          "<!--\n"
                                          "  Small: A few values.\n\n")));
    const QString palette = text(R"(
  <Palette>
    <ColorsList>
      <!-- The accent. -->
      <Color name="MainColor">#123456</Color>
      <Color name="MainColorDisabled">#654321</Color>

      <!-- What is "seen" through. -->
      <Color name="TintColor">#80ABCDEF</Color>
      <Color name="ClearColor">transparent</Color>
      <Color name="ClearRedColor">#00FF0000</Color>
    </ColorsList>

    <BrushesList>
      <!-- The accent. -->
      <SolidBrush name="MainBrush">MainColor</SolidBrush>
      <SolidBrush name="MainBrushDisabled">MainColorDisabled</SolidBrush>

      <SolidBrush name="TintBrush">TintColor</SolidBrush>
    </BrushesList>
  </Palette>

)");
    QVERIFY2(configuration.contains(palette), qPrintable(configuration));
    QVERIFY(configuration.endsWith(text("    <LargeSize>9</LargeSize>\n"
                                        "  </CornerRadius>\n"
                                        "</Config>\n")));
}

void ThemeFilesTest::paletteIsLaidOutForPeople()
{
    const ThemeRepository repository;
    const auto files = filesBelow(written(repository, smallTheme()));
    QVERIFY(files.value(text("qpaletteMapping.xml")).endsWith(R"(
<QPalette>
  <!-- Surfaces. -->
  <ColorRole role="Window">
    <ColorGroup group="All">@MainColor</ColorGroup>
  </ColorRole>

  <!-- Selection. -->
  <ColorRole role="Mid">
    <ColorGroup group="All">@MainColor</ColorGroup>
    <ColorGroup group="Inactive">@TintColor</ColorGroup>
  </ColorRole>
  <ColorRole role="Link">
    <ColorGroup group="All">@MainColorDisabled</ColorGroup>
  </ColorRole>
</QPalette>
)"));
}

void ThemeFilesTest::longHeadingsAreWrapped()
{
    ThemeDefinition theme = smallTheme();
    // With the end of the comment it is two characters too long for one line.
    theme.colors[0].heading = text("x").repeated(40) + text(" ") + text("y").repeated(46);
    theme.colors[1].heading = text("x").repeated(40) + text(" ") + text("y").repeated(44);
    const QString configuration = configurationOf(theme);
    QVERIFY(configuration.contains(text("      <!-- ") + text("x").repeated(40) +
                                   text("\n           ") + text("y").repeated(46) +
                                   text(" -->\n")));
    QVERIFY(configuration.contains(text("      <!-- ") + text("x").repeated(40) + text(" ") +
                                   text("y").repeated(44) + text(" -->\n")));
    for (const QString &line : configuration.split(QLatin1Char('\n'))) {
        QVERIFY2(line.size() <= 100, qPrintable(line));
    }
}

void ThemeFilesTest::opacitiesKeepTheirDigits()
{
    ThemeDefinition theme = smallTheme();
    theme.opacities = {{text("Third"), 1.0 / 3}, {text("Tiny"), 1e-9}, {text("Quarter"), 0.25}};
    const ThemeRepository repository;
    const QString path = written(repository, theme) + text("/config.xml");
    const auto opacities = ThemeConfigurationReader(path).getOpacitiesMap();
    QCOMPARE(opacities.value(text("Third")), 1.0 / 3);
    QCOMPARE(opacities.value(text("Tiny")), 1e-9);
    QVERIFY(configurationOf(theme).contains(text(R"(name="Quarter">0.25<)")));
}

void ThemeFilesTest::ownFontsAreWritten()
{
    ThemeDefinition theme = smallTheme();
    theme.font.family = text("Open Sans");
    const ThemeRepository repository;
    const QString folder = written(repository, theme);
    QCOMPARE(QDir(folder + text("/Fonts")).entryList(QDir::Files),
             QStringList(
                 {text("LICENSE.txt"), text("OpenSans-Bold.ttf"), text("OpenSans-Regular.ttf")}));
    const QFileInfo font(folder + text("/Fonts/OpenSans-Regular.ttf"));
    QVERIFY(font.size() > 100000);
    QVERIFY(font.isWritable());

    const ThemeRepository other;
    QVERIFY(!QFileInfo::exists(written(other, smallTheme()) + text("/Fonts")));
}

void ThemeFilesTest::otherFontsAreWritten()
{
    const ThemeRepository repository;
    ThemeDefinition theme = smallTheme();
    theme.font.files = QStringList{repository.write(text("a/My.ttf"), "mine")};
    const auto files = filesBelow(written(repository, theme) + text("/Fonts"));
    QCOMPARE(QStringList(files.keys()), QStringList{text("My.ttf")});
    QCOMPARE(files.value(text("My.ttf")), QByteArray("mine"));
}

void ThemeFilesTest::givenFontsReplaceOwnOnes()
{
    const ThemeRepository repository;
    ThemeDefinition theme = smallTheme();
    theme.font.family = text("Open Sans");
    theme.font.files = QStringList{repository.write(text("OpenSans-Bold.ttf"), "mine")};
    const auto files = filesBelow(written(repository, theme) + text("/Fonts"));
    QCOMPARE(files.size(), 3);
    QCOMPARE(files.value(text("OpenSans-Bold.ttf")), QByteArray("mine"));
}

void ThemeFilesTest::iconsAreThoseOfTheGround_data()
{
    QTest::addColumn<bool>("darkIcons");
    QTest::addColumn<QByteArray>("ink");
    QTest::newRow("dark icons") << true << QByteArray("#272E34");
    QTest::newRow("light icons") << false << QByteArray("#E5EEF4");
}

void ThemeFilesTest::iconsAreThoseOfTheGround()
{
    QFETCH(const bool, darkIcons);
    QFETCH(const QByteArray, ink);
    const ThemeRepository repository;
    ThemeDefinition theme = smallTheme();
    theme.darkIcons = darkIcons;
    const auto files = filesBelow(written(repository, theme) + text("/Images/Small/scalable"));
    QVERIFY(files.size() > 50);
    QVERIFY(files.value(text("action.close.svg")).contains(ink));
    // What is always recoloured has the ink that recolouring looks for.
    QVERIFY(files.value(text("chevron.down.svg")).contains("#E5EEF4"));
}

void ThemeFilesTest::iconThemeIsFound()
{
    const ThemeRepository repository;
    QIcon::setThemeSearchPaths({written(repository, smallTheme()) + text("/Images")});
    QIcon::setThemeName(text("Small"));
    const QIcon icon = QIcon::fromTheme(text("edit-delete"));
    QVERIFY(!icon.isNull());
    QVERIFY(!icon.pixmap(16, 16).isNull());
}

void ThemeFilesTest::bytesAreTheSame()
{
    const ThemeRepository first;
    const ThemeRepository second;
    const auto files = filesBelow(written(first, smallTheme()));
    QVERIFY(files.contains(text("Images/Small/index.theme")));
    QCOMPARE(filesBelow(written(second, smallTheme())), files);
}

QTEST_MAIN(ThemeFilesTest)
#include "ThemeFilesTest.moc"
