#include <QtCore/QDir>
#include <QtTest/QtTest>

#include <algorithm>
#include <check/model/RuleTable.h>
#include <mox-theme/support/SoundTheme.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

const QString config = QStringLiteral("config.xml");
const QString palette = QStringLiteral("qpaletteMapping.xml");

QString sheetPlace(int line, int column)
{
    return "own.qss:%1:%2 unresolved-placeholder"_s.arg(line).arg(column);
}

} // namespace

/// What is found in a theme as a whole.
class CheckThemeTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray greyEntry() { return R"(<Color name="Grey">#808080</Color>)"; }

private Q_SLOTS:
    void rulesAreSortedAndDescribed()
    {
        QCOMPARE(rules().size(), 20);
        for (int i = 0; i < rules().size(); ++i) {
            const Rule &rule = rules().at(i);
            QVERIFY(i == 0 || rules().at(i - 1).name < rule.name);
            QCOMPARE(findRule(rule.name), &rule);
            QVERIFY2(rule.description.endsWith(u'.'), qPrintable(rule.name));
        }
        QVERIFY(!findRule("no-such-rule"_s));
        QVERIFY(!findRule(QString()));
        QVERIFY(!findRule("zzz"_s));
    }

    void folderWithoutAThemeIsUnreadable()
    {
        const SoundTheme theme;
        QCOMPARE(unreadableTheme(theme.directory()), QString());
        QVERIFY(unreadableTheme(theme.path("none"_s)).contains("no such folder"_s));
        QVERIFY(unreadableTheme(theme.path(config)).contains("not a folder"_s));
        theme.write("empty/a.txt"_s, "");
        QVERIFY(unreadableTheme(theme.path("empty"_s)).contains("nothing of a theme"_s));
        theme.write("little/config.xml"_s, "");
        QCOMPARE(unreadableTheme(theme.path("little"_s)), QString());
    }

    void missingFilesAreFound()
    {
        const SoundTheme theme;
        theme.remove("theme.xml"_s);
        theme.remove(config);
        theme.remove(palette);
        QCOMPARE(places(theme.check()),
                 QStringList({"theme.xml:0:0 missing-file"_s, "config.xml:0:0 missing-file"_s,
                              "qpaletteMapping.xml:0:0 missing-file"_s}));
    }

    /// Nothing is said about names that the unread file would define.
    void unreadConfigurationIsTheOnlyFinding()
    {
        const SoundTheme theme;
        theme.write(config, "<Config>\n  <Factors>\n  </Config>\n");
        const QVector<Finding> findings = theme.check();
        QCOMPARE(places(findings), QStringList("config.xml:3:11 not-well-formed"_s));
        QVERIFY2(findings.first().text.contains("tag mismatch"_s),
                 qPrintable(findings.first().text));
    }

    /// The parser would follow the elements by recursion until the stack is used up.
    void deepNestingIsRefused()
    {
        constexpr int depth = 100'000;
        const SoundTheme theme;
        theme.write(config, QByteArray("<a>").repeated(depth));
        QCOMPARE(places(theme.check()), QStringList("config.xml:0:0 not-well-formed"_s));
    }

    void otherRootStopsTheConfiguration()
    {
        const SoundTheme theme;
        theme.write(config, "\n <config></config>");
        const QVector<Finding> findings = theme.check();
        QCOMPARE(places(findings), QStringList("config.xml:2:2 faulty-entry"_s));
        QCOMPARE(findings.first().suggestion, "Name it \"Config\""_s);
    }

    void otherRootHidesThePalette()
    {
        const SoundTheme theme;
        theme.write(palette, "<Palette/>");
        QCOMPARE(places(theme.check()), QStringList("qpaletteMapping.xml:1:1 unknown-section"_s));
    }

    /// Every faulty entry is named, and no entry that is lost by them is said to be missing.
    void faultyEntriesAreFoundBehindTheFirst()
    {
        const SoundTheme theme;
        const QByteArray content = theme.content(config);
        const int first = content.indexOf(greyEntry());
        const int colors =
            content.mid(first, content.indexOf("</ColorsList>") - first).count("<Color ");
        theme.replace(config, greyEntry(),
                      "<Color>red</Color>\n" + greyEntry() + "\n<Color name=\"\">red</Color>");
        const QVector<Finding> findings = theme.check();
        const QByteArray spoiled = theme.content(config);
        QCOMPARE(places(findings),
                 QStringList({placeOf(config, spoiled, "<Color>red") + " faulty-entry"_s,
                              placeOf(config, spoiled, "<Color name=\"\"") + " faulty-entry"_s}));
        QVERIFY2(
            findings.at(0).text.endsWith("; the %1 entries after it are lost"_s.arg(colors + 1)),
            qPrintable(findings.at(0).text));
        QVERIFY(!findings.at(1).text.contains("lost"_s));
    }

    void missingNamesAreCountedByFamily()
    {
        const SoundTheme theme;
        for (const char *name : {"ListBackgroundBrushDisabled", "ListBorderBrush",
                                 "ListBorderBrushDisabled", "CardBorderBrush"}) {
            theme.replace(config,
                          QByteArray("<SolidBrush name=\"") + name + "\">Black</SolidBrush>", "");
        }
        const QString place = placeOf(config, theme.content(config), "<BrushesList>");
        const QVector<Finding> findings = theme.check();
        QCOMPARE(places(findings), QStringList(place + " missing-variable"_s));
        QCOMPARE(findings.first().text,
                 "4 names of \"Frames and grooves\" are missing: \"CardBorderBrush\", "
                 "\"ListBackgroundBrushDisabled\", \"ListBorderBrush\" and 1 more"_s);

        CheckSettings settings;
        settings.all = true;
        const QVector<Finding> all = theme.check(settings);
        QCOMPARE(places(all),
                 QStringList(QVector<QString>(4, place + " missing-variable"_s).toList()));
        QCOMPARE(all.last().text,
                 "\"ListBorderBrushDisabled\" of \"Frames and grooves\" is missing"_s);
    }

    /// A kind of the author's own is asked for as a whole.
    void ownKindHasToBeComplete()
    {
        const SoundTheme theme;
        theme.replace(config, "</BrushesList>",
                      R"(<SolidBrush name="ButtonGhostCheckedHoverForegroundBrush">White)"
                      "</SolidBrush>\n</BrushesList>");
        const QVector<Finding> findings = theme.check();
        QCOMPARE(places(findings),
                 QStringList(placeOf(config, theme.content(config), "<BrushesList>") +
                             " missing-variable"_s));
        QVERIFY2(findings.first().text.startsWith(
                     "53 names of \"Buttons of the kind Ghost\" are missing"_s),
                 qPrintable(findings.first().text));
    }

    void completeOwnKindIsSound()
    {
        const SoundTheme theme;
        const QByteArray content = theme.content(config);
        QByteArray entries;
        for (const QByteArray &line : content.split('\n')) {
            if (line.contains("\"InputDanger")) {
                entries += QByteArray(line).replace("InputDanger", "InputGhost") + "\n";
            }
        }
        QVERIFY(entries.count('\n') == 54);
        theme.replace(config, "</BrushesList>", entries + "</BrushesList>");
        QCOMPARE(places(theme.check()), QStringList());
        // Its contrasts count as well.
        theme.replace(config, R"("InputGhostCheckedForegroundBrush">White)",
                      R"("InputGhostCheckedForegroundBrush">Black)");
        QCOMPARE(theme.findings("low-contrast"_s).size(), 1);
    }

    void whatIsReferredToIsUsed()
    {
        const SoundTheme theme;
        theme.replace(config, greyEntry(),
                      greyEntry() + R"(<Color name="Red">#FF0000</Color>)"
                                    R"(<Color name="Blue">#0000FF</Color>)"
                                    R"(<Color name="Pink">#FF80FF</Color>)");
        QCOMPARE(theme.findings("unused-entry"_s).size(), 3);
        theme.replace(palette, "</QPalette>", paletteRole("Dark", "@Red") + "</QPalette>");
        QCOMPARE(theme.findings("unused-entry"_s).size(), 2);
        theme.write("own.qss"_s, "* { color: @colors/Blue@; }");
        QCOMPARE(theme.findings("unused-entry"_s).size(), 1);
        theme.replace(config, R"(name="ListBorderBrush">Black)", R"(name="ListBorderBrush">Pink)");
        QCOMPARE(places(theme.check()), QStringList());
    }

    void unresolvedPlaceholdersAreFound()
    {
        const SoundTheme theme;
        theme.write("own.qss"_s, "a { color: @colors/MainColor@; }\r\n"
                                 "b { color: @colors/MianColor@; c: @brushes/MainBrush@ }\n"
                                 "@colors@ @nothing@ @opacities/RubberBandOpacity@\n"
                                 "@cornerRadius/LargeSize@ @fonts/base@ @colors/DisabledGrey@\n"
                                 "@internalColors/DisabledGrey@ @internalColors/Grey@\n");
        const QVector<Finding> findings = theme.check();
        QCOMPARE(places(findings),
                 QStringList({sheetPlace(2, 12), sheetPlace(2, 35), sheetPlace(3, 1),
                              sheetPlace(3, 10), sheetPlace(5, 31)}));
        QCOMPARE(findings.at(0).suggestion, "Did you mean \"colors/MainColor\"?"_s);
        QVERIFY(findings.at(1).text.contains("is a brush"_s));
        QVERIFY(findings.at(2).text.contains("is a group"_s));
    }

    void placeholdersOfTheLibraryAreFound()
    {
        const SoundTheme theme;
        theme.replace(config, R"(<Color name="BackgroundSubLevel2Color">#000000</Color>)", "");
        const QVector<Finding> findings = theme.findings("unresolved-placeholder"_s);
        QCOMPARE(places(findings),
                 QStringList(placeOf(config, theme.content(config), "<ColorsList>") +
                             " unresolved-placeholder"_s));
        QVERIFY(findings.first().text.contains("ItemViews.qss"_s));
    }

    void findingsStandInTheOrderOfFilesAndLines()
    {
        const SoundTheme theme;
        theme.replace(palette, "</QPalette>", "<Role/></QPalette>");
        theme.replace(config, "</Config>", "<Sounds/></Config>");
        theme.replace(config, greyEntry(), R"(<Color name="Grey" internal="1">#808080</Color>)");
        theme.replace("theme.xml"_s, "<name>", "<author/><name>");
        theme.write("Images/Sound/scalable/a.svg"_s, "");
        theme.write("Images/Sound/Cursors/a.cur"_s, "");
        const QStringList found = places(theme.check());
        QCOMPARE(found.size(), 6);
        QVERIFY(found.at(0).startsWith("theme.xml"_s));
        QVERIFY(found.at(1).endsWith("internal-value"_s));
        QVERIFY(found.at(2).startsWith("config.xml"_s));
        QVERIFY(found.at(3).startsWith("qpaletteMapping.xml"_s));
        QVERIFY(found.at(4).startsWith("a.cur"_s));
        QVERIFY(found.at(5).startsWith("a.svg"_s));
    }

    void authorSetsTheSeverity()
    {
        const SoundTheme theme;
        theme.replace(config, "<Weight>Normal", "<Weight>Heavy");
        theme.replace(config, greyEntry(), R"(<Color name="Grey" internal="1">#808080</Color>)");
        CheckSettings settings;
        settings.rules.insert("unknown-weight"_s, Severity::Off);
        settings.rules.insert("internal-value"_s, Severity::Error);
        const QVector<Finding> findings = theme.check(settings);
        QCOMPARE(findings.size(), 1);
        QCOMPARE(findings.first().rule, "internal-value"_s);
        QCOMPARE(findings.first().severity, Severity::Error);
    }

    void wordsForFalseAreFine_data()
    {
        QTest::addColumn<QByteArray>("value");
        for (const char *value : {"", "true", "false", "False", "0", "no"}) {
            QTest::newRow(value) << QByteArray(value);
        }
    }

    void wordsForFalseAreFine()
    {
        QFETCH(QByteArray, value);
        const SoundTheme theme;
        theme.replace(config, greyEntry(),
                      R"(<Color name="Grey" internal=")" + value + R"(">#808080</Color>)");
        QCOMPARE(places(theme.check()), QStringList());
    }

    void placesDoNotDependOnTheEndsOfLines_data()
    {
        QTest::addColumn<QByteArray>("end");
        QTest::newRow("Unix") << QByteArray("\n");
        QTest::newRow("Windows") << QByteArray("\r\n");
    }

    void placesDoNotDependOnTheEndsOfLines()
    {
        QFETCH(QByteArray, end);
        const SoundTheme theme;
        theme.write("theme.xml"_s,
                    QByteArray("<!-- a > b -->\n<theme>\n\t<name >S\xC3\xB6und</name><author\n"
                               " by='me'/></theme>")
                        .replace("\n", end));
        QCOMPARE(places(theme.check()),
                 QStringList({"theme.xml:3:2 image-folder"_s, "theme.xml:3:21 unknown-section"_s}));
    }
};

QTEST_MAIN(CheckThemeTest)
#include "CheckThemeTest.moc"
