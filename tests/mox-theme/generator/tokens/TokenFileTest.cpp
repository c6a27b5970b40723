#include <QtCore/QDir>
#include <QtTest/QtTest>

#include <generator/tokens/Tokens.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN::ThemeTool;

namespace {

/// Returns what is read of the token file \a content, which must be sound.
Tokens read(const QByteArray &content, const ThemeRepository &folder = {})
{
    Tokens tokens;
    const TokenProblem problem = readTokens(folder.write(text("theme.toml"), content), tokens);
    if (!problem.text.isEmpty()) {
        qFatal("%d:%d: %s", problem.line, problem.column, qPrintable(problem.text));
    }
    return tokens;
}

QByteArray minimal(const QByteArray &rest = {})
{
    return "name = \"Ocean\"\nseeds.accent = \"#3D8FD1\"\n" + rest;
}

} // namespace

/// What is read of sound token files, and how they are written.
class TokenFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyIsRead();
    void fontFilesAreFoundBesideTheFile();
    void imagesAreFoundBesideTheFile();
    void overridesKnowTheirPlace();
    void whatIsLeftOutKeepsItsDefault();
    void basesAreRead_data();
    void basesAreRead();
    void weightsAreRead_data();
    void weightsAreRead();
    void colorsAreReadInEveryForm();
    void wholeOpacitiesAreRead();
    void brushesKeepTheirOrder();
    void nothingIsReadOfAFaultyFile();
    void writtenTokensAreReadBack();
    void writtenDefaultsAreReadBack();
    void specialCharactersAreReadBack();
};

void TokenFileTest::everyKeyIsRead()
{
    const Tokens tokens = read(R"(
name = "Ocean"
base = "light"
[seeds]
accent = "#3D8FD1"
neutral = "#20282F"
[font]
family = "DejaVu Sans"
weight = "DemiBold"
small = 1
base = 11
medium = 13
large = 96
[radius]
small = 0
base = 5
medium = 7
large = 32
[opacity]
RubberBandOpacity = 0.5
[colors]
BackgroundColor = "#101010"
StatusInfoColor = "MainColor"
[brushes]
"ButtonDanger*BorderBrush" = "StatusDangerColor"
)");
    QCOMPARE(tokens.name, text("Ocean"));
    QVERIFY(tokens.base == Base::Light);
    QCOMPARE(tokens.accent, QColor(0x3D, 0x8F, 0xD1));
    QCOMPARE(tokens.neutral, QColor(0x20, 0x28, 0x2F));
    QCOMPARE(tokens.font.family, text("DejaVu Sans"));
    QCOMPARE(tokens.font.weight, text("DemiBold"));
    QVERIFY((tokens.font.sizes == std::array<int, 4>{1, 11, 13, 96}));
    QVERIFY((tokens.cornerRadii == std::array<int, 4>{0, 5, 7, 32}));
    QCOMPARE(tokens.rubberBandOpacity, 0.5);
    const QMap<QString, QString> colors = {{text("BackgroundColor"), text("#101010")},
                                           {text("StatusInfoColor"), text("MainColor")}};
    QCOMPARE(tokens.colors, colors);
    const QVector<QPair<QString, QString>> brushes = {
        {text("ButtonDanger*BorderBrush"), text("StatusDangerColor")}};
    QCOMPARE(tokens.brushes, brushes);
}

void TokenFileTest::fontFilesAreFoundBesideTheFile()
{
    const ThemeRepository folder;
    const QString inside = folder.write(text("fonts/My.ttf"), "font");
    const QString outside = folder.write(text("Other.TTF"), "font");
    const QByteArray content =
        minimal(R"(font.files = ["fonts/../fonts/My.ttf", ")" + outside.toUtf8() + "\"]\n");
    QCOMPARE(read(content, folder).font.files, QStringList({inside, outside}));

    // The file's folder counts, also when the file is named relative to the current one.
    QVERIFY(QDir::setCurrent(folder.makeFolder(text("elsewhere"))));
    Tokens tokens;
    QCOMPARE(readTokens(text("../theme.toml"), tokens).text, QString());
    QCOMPARE(tokens.font.files, QStringList({inside, outside}));
}

void TokenFileTest::imagesAreFoundBesideTheFile()
{
    const ThemeRepository folder;
    const QString images = folder.makeFolder(text("own/images"));
    QCOMPARE(read(minimal(R"(images = "own/./images")"), folder).images, images);
}

void TokenFileTest::overridesKnowTheirPlace()
{
    const Tokens tokens = read(minimal("[colors]\nMainColor = \"#3D8FD1\"\n"));
    const TokenPlace place = tokens.places.value(text("MainColor"));
    QCOMPARE(place.line, minimal().count('\n') + 2);
    QCOMPARE(place.column, 1);
}

void TokenFileTest::whatIsLeftOutKeepsItsDefault()
{
    const Tokens tokens = read(minimal());
    const Tokens defaults;
    QVERIFY(tokens.base == defaults.base);
    QVERIFY(!tokens.neutral.isValid());
    QCOMPARE(tokens.font.family, defaults.font.family);
    QCOMPARE(tokens.font.weight, defaults.font.weight);
    QVERIFY(tokens.font.sizes == defaults.font.sizes);
    QVERIFY(tokens.cornerRadii == defaults.cornerRadii);
    QCOMPARE(tokens.rubberBandOpacity, defaults.rubberBandOpacity);
    QVERIFY(tokens.font.files.isEmpty());
    QVERIFY(tokens.images.isEmpty());
    QVERIFY(tokens.colors.isEmpty());
    QVERIFY(tokens.brushes.isEmpty());
}

void TokenFileTest::basesAreRead_data()
{
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<int>("base");
    QTest::newRow("dark") << QByteArray("dark") << int(Base::Dark);
    QTest::newRow("light") << QByteArray("light") << int(Base::Light);
    QTest::newRow("high contrast") << QByteArray("high-contrast") << int(Base::HighContrast);
}

void TokenFileTest::basesAreRead()
{
    QFETCH(const QByteArray, word);
    QFETCH(const int, base);
    const Tokens tokens = read(minimal("base = '" + word + "'\n"));
    QCOMPARE(int(tokens.base), base);
}

void TokenFileTest::weightsAreRead_data()
{
    QTest::addColumn<QString>("weight");
    for (const char *weight : {"Thin", "ExtraLight", "Light", "Normal", "Medium", "DemiBold",
                               "Bold", "ExtraBold", "Black"}) {
        QTest::newRow(weight) << text(weight);
    }
}

void TokenFileTest::weightsAreRead()
{
    QFETCH(const QString, weight);
    const Tokens tokens = read(minimal("font.weight = '" + weight.toUtf8() + "'\n"));
    QCOMPARE(tokens.font.weight, weight);
}

void TokenFileTest::colorsAreReadInEveryForm()
{
    const Tokens tokens =
        read("name = \"Ocean\"\nseeds = { accent = \"teal\", neutral = \"#234\" }\n"
             "colors.BackgroundColor = \"#80102030\"\n");
    QCOMPARE(tokens.accent, QColor(0, 0x80, 0x80));
    QCOMPARE(tokens.neutral, QColor(0x22, 0x33, 0x44));
    QCOMPARE(tokens.colors.value(text("BackgroundColor")), text("#80102030"));
}

void TokenFileTest::wholeOpacitiesAreRead()
{
    QCOMPARE(read(minimal("opacity.RubberBandOpacity = 1\n")).rubberBandOpacity, 1.0);
    QCOMPARE(read(minimal("opacity.RubberBandOpacity = 0\n")).rubberBandOpacity, 0.0);
}

void TokenFileTest::brushesKeepTheirOrder()
{
    const Tokens tokens = read(minimal("[brushes]\n"
                                       "\"Z*\" = \"MainColor\"\n"
                                       "\"A*\" = \"MainColor\"\n"
                                       "M = \"BackgroundColor\"\n"
                                       "\"*B\" = \"#123456\"\n"));
    QStringList names;
    for (const auto &brush : tokens.brushes) {
        names.append(brush.first);
    }
    QCOMPARE(names, QStringList({text("Z*"), text("A*"), text("M"), text("*B")}));

    const Tokens inOneLine = read(minimal("brushes = { Z = \"#123\", A = \"#456\" }\n"));
    QCOMPARE(inOneLine.brushes.first().first, text("Z"));
}

void TokenFileTest::nothingIsReadOfAFaultyFile()
{
    const ThemeRepository folder;
    Tokens tokens;
    tokens.name = text("Former");
    const QString path = folder.write(text("theme.toml"), minimal("radius.small = 99\n"));
    QVERIFY(!readTokens(path, tokens).text.isEmpty());
    QCOMPARE(tokens.name, text("Former"));
    QVERIFY(!tokens.accent.isValid());
}

void TokenFileTest::writtenTokensAreReadBack()
{
    const ThemeRepository folder;
    Tokens tokens;
    tokens.name = text("Ocean");
    tokens.base = Base::HighContrast;
    tokens.accent = QColor(0x3D, 0x8F, 0xD1);
    tokens.neutral = QColor(0x20, 0x28, 0x2F);
    tokens.font.family = text("DejaVu Sans");
    tokens.font.weight = text("Bold");
    tokens.font.sizes = {7, 8, 9, 11};
    tokens.font.files = QStringList{folder.write(text(R"(a "b".ttf)"), "font")};
    tokens.cornerRadii = {1, 2, 3, 5};
    tokens.rubberBandOpacity = 0.1;
    tokens.colors = {{text("MainColor"), text("#123456")}, {text("odd name"), text("MainColor")}};
    tokens.brushes = {{text("Z*"), text("MainColor")}, {text("A*"), text("#000000")}};

    const Tokens again = read(tokenFile(tokens).toUtf8(), folder);
    QCOMPARE(again.name, tokens.name);
    QVERIFY(again.base == tokens.base);
    QCOMPARE(again.accent, tokens.accent);
    QCOMPARE(again.neutral, tokens.neutral);
    QCOMPARE(again.font.family, tokens.font.family);
    QCOMPARE(again.font.weight, tokens.font.weight);
    QVERIFY(again.font.sizes == tokens.font.sizes);
    QCOMPARE(again.font.files, tokens.font.files);
    QVERIFY(again.cornerRadii == tokens.cornerRadii);
    QCOMPARE(again.rubberBandOpacity, tokens.rubberBandOpacity);
    QCOMPARE(again.colors, tokens.colors);
    QCOMPARE(again.brushes, tokens.brushes);
}

void TokenFileTest::writtenDefaultsAreReadBack()
{
    Tokens tokens;
    tokens.name = text("Ocean");
    tokens.accent = QColor(0x3D, 0x8F, 0xD1);
    const QString content = tokenFile(tokens);
    const Tokens again = read(content.toUtf8());
    QVERIFY(!again.neutral.isValid());
    QVERIFY(again.font.files.isEmpty());
    QVERIFY(again.colors.isEmpty());
    QVERIFY(again.brushes.isEmpty());
    QCOMPARE(tokenFile(again), content);
    for (const QString &line : content.split(QLatin1Char('\n'))) {
        QVERIFY2(line.size() <= 100, qPrintable(line));
    }
}

void TokenFileTest::specialCharactersAreReadBack()
{
    Tokens tokens;
    tokens.name = QString::fromUtf8("Q\\ \"R\" # \u00e9\U0001F30A = [x]");
    tokens.accent = Qt::black;
    QCOMPARE(read(tokenFile(tokens).toUtf8()).name, tokens.name);
}

QTEST_GUILESS_MAIN(TokenFileTest)
#include "TokenFileTest.moc"
