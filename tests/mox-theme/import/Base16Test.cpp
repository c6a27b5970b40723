#include <QtTest/QtTest>

#include <import/Base16.h>
#include <mox-theme/support/SchemeFiles.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

namespace {

Base16 readScheme(const QString &name)
{
    Base16 scheme;
    const SchemeProblem problem = readBase16(schemeContent(name), scheme);
    if (!problem.text.isEmpty()) {
        qFatal("%s: %s", qPrintable(name), qPrintable(problem.text));
    }
    return scheme;
}

/// Returns the colours of \a scheme, six digits each, separated by blanks.
QString digitsOf(const Base16 &scheme)
{
    QStringList digits;
    for (const QColor &color : scheme.colors) {
        if (color.isValid()) {
            digits.append(color.name().mid(1));
        }
    }
    return digits.join(QLatin1Char(' '));
}

/// Returns a sound scheme in which the line of \a key is replaced by \a line.
QByteArray schemeWith(const QByteArray &key, const QByteArray &line)
{
    QByteArray content = "scheme: \"Test\"\n";
    for (int i = 0; i < 16; ++i) {
        const QByteArray current = "base0" + QByteArray::number(i, 16).toUpper();
        content +=
            current == key ? line : current + ": \"0" + QByteArray::number(i, 16) + "5070\"\n";
    }
    return content;
}

} // namespace

/// What is read from base16 and base24 schemes.
class Base16Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isRecognisedByItsContent_data();
    void isRecognisedByItsContent();
    void valuesAreRead_data();
    void valuesAreRead();
    void namesAreRead_data();
    void namesAreRead();
    void variablesAreFilled();
    void darkerBackgroundsComeFromBase24();
    void kindIsTold();
    void problemsHaveTheirPlace_data();
    void problemsHaveTheirPlace();
};

void Base16Test::isRecognisedByItsContent_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isScheme");
    QTest::newRow("flat") << QByteArray("scheme: A\nbase00: \"112233\"\n") << true;
    QTest::newRow("palette") << QByteArray("name: A\r\npalette:\r\n") << true;
    QTest::newRow("quoted keys") << QByteArray("{\n  \"base0a\" : \"112233\"\n}\n") << true;
    QTest::newRow("other YAML") << QByteArray("services:\n  database01: 1\n") << false;
    QTest::newRow("INI") << QByteArray("[Colors:Window]\nBackgroundNormal=1,2,3\n") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void Base16Test::isRecognisedByItsContent()
{
    QFETCH(QByteArray, content);
    QTEST(isBase16(content), "isScheme");
}

void Base16Test::valuesAreRead_data()
{
    QTest::addColumn<QString>("digits");
    const auto row = [](const char *scheme, const char *digits) {
        QTest::newRow(scheme) << text(digits);
    };
    row("HarbourNight.yaml", "161b20 20272e 2c353e 55616c 8793a0 c9d2da dde4ea f1f5f8 "
                             "e0646c dd8f52 d9b856 7dbb72 5cb8b2 5aa2dc b48ad6 a8775c");
    row("MorningFrost.yaml", "fbfcfd eef2f5 dde4ea 9daab5 66737f 2f3a44 1f2830 0f151a "
                             "c2303c bd5f14 8e6c00 2f7d3a 0b7a80 1f62b8 7a3fae 7f5238");
    row("LanternSmoke.yaml", "1a1f24 242b32 333c46 5d6975 8f9ba7 cfd7de e2e8ed f5f8fa "
                             "e86a70 e39a5a e3c464 86c67c 66c4be 66aee8 c096e2 b0826a "
                             "12161a 0b0e11 ff868c ffda7c a0e096 80dcd6 84c6ff d8b0f8");
    // Without quotes, with small digits, comments, carriage returns and a byte order mark.
    row("Blueprint.yml", "0b2a4a 12365c 1c4670 5f83a8 8fb0d0 d4e6f6 e6f1fb f7fbff "
                         "ff8f8f ffb27a ffe08a 9fe6a8 8fe6ea 8fc4ff d0b0ff 112233");
    // From last to first, on few lines.
    row("Typewriter.yaml", "f2f2f2 e6e6e6 cfcfcf 8a8a8a 505050 111111 0a0a0a 000000 "
                           "202020 4a4a4a 606060 3a3a3a 555555 444444 666666 555555");
}

void Base16Test::valuesAreRead()
{
    QTEST(digitsOf(readScheme(text(QTest::currentDataTag()))), "digits");
}

void Base16Test::namesAreRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("author");
    QTest::newRow("HarbourNight.yaml")
        << text("Harbour Night") << text("A. Keeper (https://harbour.example)");
    QTest::newRow("PlumOrchard.yaml") << text("Plum Orchard") << text("A. Keeper");
    QTest::newRow("Typewriter.yaml") << text("Type/writer: \"No. 5\"") << QString();
}

void Base16Test::namesAreRead()
{
    const Base16 scheme = readScheme(text(QTest::currentDataTag()));
    QTEST(scheme.name, "name");
    QTEST(scheme.author, "author");
}

void Base16Test::variablesAreFilled()
{
    const ColorScheme scheme = colorScheme(readScheme(text("HarbourNight.yaml")));
    QCOMPARE(scheme.accent, QColor(0x5a, 0xa2, 0xdc));
    const QMap<QString, QColor> expected{
        {text("BackgroundColor"), QColor(0x16, 0x1b, 0x20)},
        {text("BackgroundUpLevel1Color"), QColor(0x20, 0x27, 0x2e)},
        {text("ButtonBackgroundColor"), QColor(0x2c, 0x35, 0x3e)},
        {text("ForegroundDisabledColor"), QColor(0x55, 0x61, 0x6c)},
        {text("ForegroundSubLevel1Color"), QColor(0x87, 0x93, 0xa0)},
        {text("ForegroundColor"), QColor(0xc9, 0xd2, 0xda)},
        {text("ForegroundLinkColor"), QColor(0x5a, 0xa2, 0xdc)},
        {text("ForegroundLinkVisitedColor"), QColor(0xb4, 0x8a, 0xd6)},
        {text("StatusDangerColor"), QColor(0xe0, 0x64, 0x6c)},
        {text("StatusWarningColor"), QColor(0xd9, 0xb8, 0x56)},
        {text("StatusSuccessColor"), QColor(0x7d, 0xbb, 0x72)},
        {text("StatusInfoColor"), QColor(0x5c, 0xb8, 0xb2)},
        {text("Series01Color"), QColor(0x5a, 0xa2, 0xdc)},
        {text("Series02Color"), QColor(0xdd, 0x8f, 0x52)},
        {text("Series03Color"), QColor(0x7d, 0xbb, 0x72)},
        {text("Series04Color"), QColor(0xb4, 0x8a, 0xd6)},
        {text("Series05Color"), QColor(0xd9, 0xb8, 0x56)},
        {text("Series06Color"), QColor(0x5c, 0xb8, 0xb2)},
        {text("Series07Color"), QColor(0xe0, 0x64, 0x6c)},
        {text("Series08Color"), QColor(0xa8, 0x77, 0x5c)}};
    QCOMPARE(scheme.colors, expected);
}

void Base16Test::darkerBackgroundsComeFromBase24()
{
    const ColorScheme scheme = colorScheme(readScheme(text("LanternSmoke.yaml")));
    QCOMPARE(scheme.colors.value(text("BackgroundSubLevel1Color")), QColor(0x12, 0x16, 0x1a));
    QCOMPARE(scheme.colors.value(text("BackgroundSubLevel2Color")), QColor(0x0b, 0x0e, 0x11));
}

void Base16Test::kindIsTold()
{
    QCOMPARE(colorScheme(readScheme(text("HarbourNight.yaml"))).kind, text("base16 scheme"));
    QCOMPARE(colorScheme(readScheme(text("Meadow.yaml"))).kind, text("base24 scheme"));
}

void Base16Test::problemsHaveTheirPlace_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("problem");
    const QString notAColor = text("base0B: \"%1\" is not a colour of six hexadecimal digits");

    QTest::newRow("open quote") << schemeWith("base0B", "base0B: \"112233\n") << 14 << 10
                                << text("not YAML: ");
    QTest::newRow("tab") << QByteArray("palette:\n\tbase00: \"112233\"\n") << 2 << 8
                         << text("not YAML: ");
    QTest::newRow("only a list") << QByteArray("- base00: \"112233\"\n") << 1 << 1
                                 << text("not a list of names and values");
    QTest::newRow("word") << schemeWith("base0B", "base0B: greenish\n") << 13 << 9
                          << notAColor.arg(text("greenish"));
    QTest::newRow("five digits") << schemeWith("base0B", "base0B: \"12345\"\n") << 13 << 9
                                 << notAColor.arg(text("12345"));
    QTest::newRow("comment instead of a colour")
        << schemeWith("base0B", "base0B: #123456\n") << 13 << 1 << notAColor.arg(QString());
    QTest::newRow("map") << schemeWith("base0B", "base0B: {red: 1}\n") << 13 << 1
                         << notAColor.arg(QString());
    QTest::newRow("one missing") << schemeWith("base0B", "") << 0 << 0 << text("missing: base0B");
    QTest::newRow("some missing") << schemeWith("base0A", "")
                                         .replace("base05", "base5")
                                         .replace("scheme: \"Test\"", "slug: a")
                                  << 0 << 0 << text("missing: base05, base0A");
}

void Base16Test::problemsHaveTheirPlace()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, problem);
    Base16 scheme;
    const SchemeProblem found = readBase16(content, scheme);
    QVERIFY2(found.text.startsWith(problem), qPrintable(found.text));
    QVERIFY(!found.text.contains(QLatin1Char('\n')));
    QTEST(found.line, "line");
    QTEST(found.column, "column");
}

QTEST_GUILESS_MAIN(Base16Test)
#include "Base16Test.moc"
