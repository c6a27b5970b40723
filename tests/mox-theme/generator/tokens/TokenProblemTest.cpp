#include <QtTest/QtTest>

#include <generator/tokens/Tokens.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN::ThemeTool;

namespace {

const char Head[] = "name = \"Ocean\"\nseeds.accent = \"#3D8FD1\"\n";

/// Adds a case: \a line stands in line 3, and the problem is in its column \a column.
void addCase(const char *title, const QByteArray &line, int column, const char *problem)
{
    QTest::newRow(title) << Head + line + "\n" << 3 << column << QString::fromUtf8(problem);
}

void addWholeCase(const char *title, const QByteArray &content, int line, int column,
                  const char *problem)
{
    QTest::newRow(title) << content << line << column << QString::fromUtf8(problem);
}

void addNames()
{
    const char mark[] = "\nseeds.accent = \"#3D8FD1\"\n";
    addWholeCase("empty name", QByteArray(R"(name = "")") + mark, 1, 8, R"(the name "" is empty)");
    addWholeCase("blank name", QByteArray(R"(name = " ")") + mark, 1, 8,
                 R"(the name " " is empty)");
    addWholeCase("path as name", QByteArray(R"(name = "a/b")") + mark, 1, 8,
                 R"(the name "a/b" contains)");
    addWholeCase("parent as name", QByteArray(R"(name = "..")") + mark, 1, 8,
                 R"(the name ".." begins)");
    addWholeCase("hidden name", QByteArray(R"(name = ".Ocean")") + mark, 1, 8,
                 R"(the name ".Ocean" begins)");
    addWholeCase("control character in name", QByteArray(R"(name = "a\u0007")") + mark, 1, 8,
                 "contains a control character");
    addWholeCase("number as name", QByteArray("name = 5") + mark, 1, 8,
                 R"("name" must be a text in quotation marks)");
}

void addSeeds()
{
    const QByteArray head = "name = \"Ocean\"\n[seeds]\n";
    addWholeCase("no accent", head, 2, 1,
                 R"("accent", the colour that the theme is made of, is missing in [seeds])");
    addWholeCase("no seeds", "name = \"Ocean\"\n", 0, 0, R"("accent", the colour)");
    addWholeCase("no name", "seeds.accent = \"#3D8FD1\"\n", 0, 0,
                 R"("name", the theme's name, is missing)");
    addWholeCase("empty file", "", 0, 0, R"("name", the theme's name, is missing)");
    addWholeCase("accent is no colour", head + "accent = \"#3D8FD\"\n", 3, 10,
                 R"("accent" is no colour: "#3D8FD")");
    addWholeCase("empty accent", head + "accent = \"\"\n", 3, 10, R"("accent" is no colour: "")");
    addWholeCase("translucent accent", head + "accent = \"#803D8FD1\"\n", 3, 10,
                 R"("accent" must be opaque: "#803D8FD1")");
    addWholeCase("translucent neutral", head + "neutral = \"transparent\"\n", 3, 11,
                 R"("neutral" must be opaque)");
    addWholeCase("accent is a number", head + "accent = 0x3D8FD1\n", 3, 10,
                 R"("accent" must be a text in quotation marks)");
    addWholeCase("unknown seed", head + "acent = \"#3D8FD1\"\n", 3, 1,
                 R"(unknown key "acent" in [seeds]; did you mean "accent"?)");
}

void addUnknownKeys()
{
    addCase("unknown key", R"(bas = "dark")", 1, R"(unknown key "bas"; did you mean "base"?)");
    addCase("key that resembles none", "  colour-blindness = 1", 3,
            R"(unknown key "colour-blindness")");
    addCase("unknown table", "[fonts]", 2, R"(unknown table "fonts"; did you mean "font"?)");
    addCase("unknown font key", R"(font.famly = "Ubuntu")", 6,
            R"(unknown key "famly" in [font]; did you mean "family"?)");
    addCase("unknown radius", "radius.larg = 3", 8,
            R"(unknown key "larg" in [radius]; did you mean "large"?)");
    addCase("unknown opacity", "opacity.RuberBandOpacity = 1", 9,
            R"(unknown key "RuberBandOpacity" in [opacity]; did you mean "RubberBandOpacity"?)");
}

void addWords()
{
    addCase("unknown base", R"(base = "drak")", 8,
            R"(unknown base "drak" (dark, light, high-contrast); did you mean "dark"?)");
    addCase("base is no text", "base = true", 8, R"("base" must be a text in quotation marks)");
    addCase("unknown weight", R"(font.weight = "bold")", 15, R"(; did you mean "Bold"?)");
    addCase("weight is no text", "font.weight = 75", 15, R"("weight" must be a text)");
    addCase("empty family", R"(font.family = "")", 15, R"("" is no family of fonts)");
    addCase("control character in family", R"(font.family = "a\u0001")", 15,
            R"("a\x01" is no family of fonts)");
}

void addNumbers()
{
    const char points[] = "must be a whole number from 1 to 96";
    addCase("font of no size", "font.small = 0", 14, points);
    addCase("font too large", "font.base = 97", 13, points);
    addCase("broken font size", "font.medium = 9.5", 15, points);
    addCase("font size is a text", R"(font.large = "12")", 14, points);
    addCase("font size beyond all numbers", "font.large = 9223372036854775807", 14, points);
    addCase("radius below zero", "radius.small = -1", 16,
            R"("small" must be a whole number from 0 to 32)");
    addCase("radius too large", "radius.base = 33", 15,
            R"("base" must be a whole number from 0 to 32)");
    addCase("radius is a text", R"(radius.medium = "4")", 17, R"("medium" must be a whole number)");
    addCase("broken radius", "radius.large = 4.0", 16, R"("large" must be a whole number)");
    const char opacity[] = R"("RubberBandOpacity" must be a number from 0 to 1)";
    addCase("opacity too large", "opacity.RubberBandOpacity = 1.01", 29, opacity);
    addCase("opacity below zero", "opacity.RubberBandOpacity = -0.1", 29, opacity);
    addCase("opacity is no number", "opacity.RubberBandOpacity = nan", 29, opacity);
    addCase("opacity is a text", R"(opacity.RubberBandOpacity = "1")", 29, opacity);
    addCase("opacity is a truth", "opacity.RubberBandOpacity = true", 29, opacity);
}

void addFontFiles()
{
    addCase("no folder of images", R"(images = "none")", 10, R"(there is no folder "none")");
    addCase("images are a number", "images = 1", 10,
            R"("images" must be a text in quotation marks)");
    addCase("no font file", R"(font.files = ["none.ttf"])", 15,
            R"(there is no font file "none.ttf")");
    addCase("folder as font file", R"(font.files = ["."])", 15, R"(there is no font file ".")");
    addCase("file that the library does not load", R"(font.files = ["font.otf"])", 15,
            R"("font.otf" is not loaded: the name of a font file must end in ".ttf")");
    addCase("two files of a name", R"(font.files = ["font.ttf", "./font.ttf"])", 27,
            R"(two font files are named "font.ttf")");
    addCase("font file is a number", "font.files = [1]", 15, R"("files" must be a text)");
    addCase("font files are a text", R"(font.files = "font.ttf")", 14,
            R"("files" must be a list of font files)");
}

void addOverrides()
{
    addCase("colour that is none", R"(colors.MainColor = "#12")", 20,
            R"("MainColor" is no colour: "#12")");
    addCase("empty colour", R"(colors.MainColor = "")", 20, R"("MainColor" is no colour: "")");
    addCase("colour is a number", "colors.MainColor = 1", 20,
            R"("MainColor" must be a text in quotation marks)");
    addCase("nested colours", R"(colors.Main.Color = "#123456")", 8, R"("Main" must be a text)");
    addCase("nameless colour", R"(colors."" = "#123456")", 8, "an entry of [colors] has no name");
    addCase("brush that is none", R"(brushes.MainBrush = "#12")", 21,
            R"("MainBrush" is no colour: "#12")");
    addCase("brush is a list", R"(brushes.MainBrush = ["#123"])", 21,
            R"("MainBrush" must be a text)");
}

void addTables()
{
    for (const char *table : {"seeds", "font", "radius", "opacity", "colors", "brushes"}) {
        QTest::newRow(table) << QByteArray("name = \"Ocean\"\n") + table + " = 1\n"
                             << 2 << int(qstrlen(table)) + 4
                             << text(R"("%1" must be a table)").arg(text(table));
    }
    addCase("list of tables", "[[font]]", 1, R"("font" must be a table)");
}

} // namespace

/// Every problem of a token file, and where it is told to be.
class TokenProblemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void problemsAreTold_data();
    void problemsAreTold();
    void syntaxErrorsAreTold_data();
    void syntaxErrorsAreTold();
    void theFirstProblemIsTold();
    void unreadableFilesAreTold();
};

void TokenProblemTest::problemsAreTold_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("problem");
    addNames();
    addSeeds();
    addUnknownKeys();
    addWords();
    addNumbers();
    addFontFiles();
    addOverrides();
    addTables();
}

void TokenProblemTest::problemsAreTold()
{
    QFETCH(const QByteArray, content);
    QFETCH(const int, line);
    QFETCH(const int, column);
    QFETCH(const QString, problem);
    const ThemeRepository folder;
    folder.write(text("font.ttf"), "font");
    folder.write(text("font.otf"), "font");
    Tokens tokens;
    const TokenProblem told = readTokens(folder.write(text("theme.toml"), content), tokens);
    QVERIFY2(told.text.contains(problem), qPrintable(told.text));
    QCOMPARE(told.line, line);
    QCOMPARE(told.column, column);
}

void TokenProblemTest::syntaxErrorsAreTold_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::newRow("no value") << QByteArray("name = \n") << 1;
    QTest::newRow("open quotation") << QByteArray("name = \"Ocean\"\nbase = \"dark\n") << 2;
    QTest::newRow("key twice") << QByteArray("name = \"Ocean\"\nname = \"Sea\"\n") << 2;
    QTest::newRow("unquoted pattern") << QByteArray("[brushes]\nButton* = \"MainColor\"\n") << 2;
    QTest::newRow("no text") << QByteArray("name = \"\xff\xfe\"\n") << 1;
    QTest::newRow("bytes") << QByteArray("\0\x01\x02", 3) << 1;
}

void TokenProblemTest::syntaxErrorsAreTold()
{
    QFETCH(const QByteArray, content);
    QFETCH(const int, line);
    const ThemeRepository folder;
    Tokens tokens;
    const TokenProblem told = readTokens(folder.write(text("theme.toml"), content), tokens);
    QCOMPARE(told.line, line);
    QVERIFY(told.column > 0);
    QVERIFY(!told.text.isEmpty());
    QVERIFY2(!told.text.contains(QLatin1Char('\n')), qPrintable(told.text));
}

void TokenProblemTest::theFirstProblemIsTold()
{
    const ThemeRepository folder;
    Tokens tokens;
    const QString path = folder.write(text("theme.toml"), "zone = 1\nname = 2\n[font]\nbase = 0\n");
    const TokenProblem told = readTokens(path, tokens);
    QCOMPARE(told.line, 1);
    QCOMPARE(told.text, text(R"(unknown key "zone")"));
}

void TokenProblemTest::unreadableFilesAreTold()
{
    const ThemeRepository folder;
    Tokens tokens;
    const TokenProblem missing = readTokens(folder.path(text("none.toml")), tokens);
    QCOMPARE(missing.text, text("there is no such file"));
    QCOMPARE(missing.line, 0);
    QCOMPARE(readTokens(folder.path(), tokens).text, text("cannot be read"));
}

QTEST_GUILESS_MAIN(TokenProblemTest)
#include "TokenProblemTest.moc"
