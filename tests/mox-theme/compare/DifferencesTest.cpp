#include <QtCore/QJsonArray>
#include <QtTest/QtTest>

#include <mox-theme/support/DifferingThemes.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

namespace {

/// Returns what happened to what, in order: "+ MainColor".
QStringList names(const QVector<QJsonObject> &changes)
{
    const QMap<QString, QString> marks{
        {text("added"), text("+ ")}, {text("removed"), text("- ")}, {text("changed"), text("~ ")}};
    QStringList names;
    for (const QJsonObject &change : changes) {
        names.append(marks[change[text("kind")].toString()] + change[text("name")].toString());
    }
    return names;
}

QString step(const QJsonObject &change)
{
    return change[text("before")].toString() + text(" -> ") + change[text("after")].toString();
}

} // namespace

/// What is told of the values in which two themes differ.
class DifferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aColourIsToldOnceWithItsFollowers();
    void theLargestChangeComesFirst();
    void addedAndRemoved();
    void brushesAreToldThatReferElsewhere();
    void gradientsAreToldByTheirStops();
    void paletteRolesJoinTheirGroups();
    void paletteRolesFollowBrushes();
    void fonts();
    void numbers();
    void files();
    void imagesOfAnotherName();
    void contrastsThatFallAndRise();
    void contrastsOfDisabledText();
};

void DifferencesTest::aColourIsToldOnceWithItsFollowers()
{
    Pair pair;
    pair.after.colors.replace("#1a6fae", "#419ddf");
    const QJsonArray changes = pair.json()[text("changes")].toArray();
    QCOMPARE(changes.size(), 1);
    const QJsonObject change = changes[0].toObject();
    QCOMPARE(change[text("section")].toString(), text("colors"));
    QCOMPARE(change[text("name")].toString(), text("MainColor"));
    QCOMPARE(step(change), text("#1A6FAE -> #419DDF"));
    QCOMPARE(change[text("visibility")].toString(), text("clear"));
    // MainBrush, FaintBrush and ShadedBrush; Link in three groups and Base in one.
    QCOMPARE(change[text("brushesFollowing")].toInt(), 3);
    QCOMPARE(change[text("paletteEntriesFollowing")].toInt(), 4);
    QCOMPARE(pair.diff().exitCode, int(Findings));
}

void DifferencesTest::theLargestChangeComesFirst()
{
    Pair pair;
    pair.before.colors = "<Color name='A'>#101010</Color><Color name='B'>#101010</Color>"
                         "<Color name='C'>#101010</Color>";
    pair.after.colors = "<Color name='A'>#111111</Color><Color name='B'>#ffffff</Color>"
                        "<Color name='C'>#303030</Color>";
    pair.before.brushes.clear();
    pair.after.brushes.clear();
    const QVector<QJsonObject> changes = pair.changes("colors");
    QCOMPARE(names(changes), (QStringList{text("~ B"), text("~ C"), text("~ A")}));
    QCOMPARE(changes[0][text("visibility")].toString(), text("strong"));
    QCOMPARE(changes[1][text("visibility")].toString(), text("clear"));
    QCOMPARE(changes[2][text("visibility")].toString(), text("invisible"));
}

void DifferencesTest::addedAndRemoved()
{
    Pair pair;
    pair.before.colors += "<Color name='OldColor'>#80ffffff</Color>";
    pair.after.colors += "<Color name='NewColor'>#123456</Color>";
    const QVector<QJsonObject> changes = pair.changes("colors");
    // The derived variants of both are none of the theme's.
    QCOMPARE(names(changes), (QStringList{text("- OldColor"), text("+ NewColor")}));
    QCOMPARE(changes[0][text("before")].toString(), text("#80FFFFFF"));
    QVERIFY(changes[0][text("after")].isNull());
    QVERIFY(changes[1][text("before")].isNull());
    QCOMPARE(changes[1][text("after")].toString(), text("#123456"));
    QVERIFY(changes[1][text("distance")].isNull());
}

void DifferencesTest::brushesAreToldThatReferElsewhere()
{
    Pair pair;
    pair.before.colors += "<Color name='TwinColor'>#1a6fae</Color>";
    pair.after.colors += "<Color name='TwinColor'>#1a6fae</Color>";
    pair.after.brushes.replace("'MainBrush'>MainColor", "'MainBrush'>TwinColor");
    const QVector<QJsonObject> changes = pair.changes("brushes");
    QCOMPARE(names(changes), QStringList(text("~ MainBrush")));
    QCOMPARE(step(changes[0]), text("MainColor -> TwinColor"));
    QCOMPARE(changes[0][text("distance")].toDouble(-1), 0.0);
    QCOMPARE(pair.json()[text("changes")].toArray().size(), 1);
}

void DifferencesTest::gradientsAreToldByTheirStops()
{
    Pair pair;
    pair.after.brushes.replace("offset='1'", "offset='0.5'");
    const QVector<QJsonObject> changes = pair.changes("brushes");
    QCOMPARE(names(changes), QStringList(text("~ ShadedBrush")));
    QCOMPARE(step(changes[0]), text("gradient from 0,0 to 0,1: 0 MainColor, 1 BackgroundColor -> "
                                    "gradient from 0,0 to 0,1: 0 MainColor, 0.5 BackgroundColor"));
    QVERIFY(changes[0][text("distance")].toDouble() > 0.05);
    QCOMPARE(changes[0][text("paletteEntriesFollowing")].toInt(), 1);
}

void DifferencesTest::paletteRolesJoinTheirGroups()
{
    Pair pair;
    pair.rolesAfter.replace("@MainColor", "#ff0000");
    pair.rolesAfter += "<ColorRole role='Background'>"
                       "<ColorGroup group='Normal'>@BackgroundColor</ColorGroup>"
                       "<ColorGroup group='Disabled'>@BackgroundColor</ColorGroup></ColorRole>";
    const QVector<QJsonObject> changes = pair.changes("palette");
    QCOMPARE(names(changes), (QStringList{text("+ Window"), text("~ Link")}));
    const auto groups = [](const QJsonObject &change) {
        return change[text("groups")].toVariant().toStringList();
    };
    QCOMPARE(groups(changes[0]), (QStringList{text("Active"), text("Disabled")}));
    QCOMPARE(groups(changes[1]), (QStringList{text("Active"), text("Disabled"), text("Inactive")}));
    QCOMPARE(step(changes[1]), text("@MainColor -> #ff0000"));
    QCOMPARE(changes[1][text("visibility")].toString(), text("strong"));
}

void DifferencesTest::paletteRolesFollowBrushes()
{
    Pair pair;
    pair.rolesBefore = pair.rolesAfter =
        "<ColorRole role='Text'><ColorGroup group='All'>@MainBrush</ColorGroup></ColorRole>";
    pair.after.brushes.replace("'MainBrush'>MainColor", "'MainBrush'>BackgroundColor");
    QVERIFY(pair.changes("palette").isEmpty());
    const QVector<QJsonObject> changes = pair.changes("brushes");
    QCOMPARE(names(changes), QStringList(text("~ MainBrush")));
    QCOMPARE(changes[0][text("paletteEntriesFollowing")].toInt(), 3);
}

void DifferencesTest::fonts()
{
    Pair pair;
    pair.after.font = "<Family>Other Sans</Family><Weight>Bold</Weight><SmallSize>8</SmallSize>"
                      "<BaseSize>9</BaseSize><MediumSize>10</MediumSize><LargeSize>14</LargeSize>";
    const QVector<QJsonObject> changes = pair.changes("fonts");
    QCOMPARE(names(changes),
             (QStringList{text("~ large size"), text("~ family"), text("~ weight")}));
    QCOMPARE(step(changes[0]), text("12 pt -> 14 pt"));
    QCOMPARE(step(changes[1]), text("DejaVu Sans -> Other Sans"));
    QCOMPARE(step(changes[2]), text("Normal -> Bold"));
}

void DifferencesTest::numbers()
{
    Pair pair;
    pair.after.cornerRadii.replace("<BaseSize>4", "<BaseSize>3");
    pair.after.opacities.replace("0.25", "0.5");
    pair.after.factors.replace("250", "200");
    QCOMPARE(names(pair.changes("cornerRadius")), QStringList(text("~ BaseSize")));
    QCOMPARE(step(pair.changes("cornerRadius")[0]), text("4 -> 3"));
    QCOMPARE(names(pair.changes("opacities")), QStringList(text("~ RubberBandOpacity")));
    QCOMPARE(step(pair.changes("opacities")[0]), text("0.25 -> 0.5"));
    QCOMPARE(names(pair.changes("factors")), QStringList(text("~ DarkForegroundDisableFactor")));
    QCOMPARE(step(pair.changes("factors")[0]), text("250 -> 200"));
    // The derived colours that the factor changes are none of the theme's.
    QCOMPARE(pair.json()[text("changes")].toArray().size(), 3);
}

void DifferencesTest::files()
{
    Pair pair;
    pair.write("Images/Plain/scalable/same.svg", "same", "same");
    pair.write("Images/Plain/scalable/other.svg", "one", "two");
    pair.write("Images/Plain/Cursors/longer.svg", "", "longer");
    pair.writeBefore("Fonts/old.ttf");
    pair.writeAfter("Images/Plain/.new");
    pair.writeAfter("notes.txt");
    const QVector<QJsonObject> changes = pair.changes("files");
    QCOMPARE(names(changes), (QStringList{text("- Fonts/old.ttf"), text("+ Images/<name>/.new"),
                                          text("~ Images/<name>/Cursors/longer.svg"),
                                          text("~ Images/<name>/scalable/other.svg")}));
    QVERIFY(changes[3][text("before")].toString().startsWith(text("3 bytes (")));
}

void DifferencesTest::imagesOfAnotherName()
{
    const ThemeRepository repository;
    repository.write(text("One/Images/One/scalable/a.svg"), "x");
    repository.write(text("Two/Images/Two/scalable/a.svg"), "x");
    const QJsonArray changes = jsonDiff(repository.addTheme(text("One")),
                                        repository.addTheme(text("Two")))[text("changes")]
                                   .toArray();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0][text("section")].toString(), text("description"));
    QCOMPARE(step(changes[0].toObject()), text("One -> Two"));
}

void DifferencesTest::contrastsThatFallAndRise()
{
    Pair pair;
    pair.before.colors += "<Color name='MainUpLevel1Color'>#ffffff</Color>";
    pair.after.colors += "<Color name='MainUpLevel1Color'>#20282f</Color>";
    const QByteArray tab = "<SolidBrush name='TabBackgroundActiveBrush'>BackgroundColor"
                           "</SolidBrush>";
    pair.before.brushes += tab;
    pair.after.brushes += tab;
    const QJsonArray fallen = pair.json()[text("contrasts")].toArray();
    QCOMPARE(fallen.size(), 1);
    QCOMPARE(fallen[0][text("text")].toString(), text("MainUpLevel1Color"));
    QCOMPARE(fallen[0][text("surface")].toString(), text("TabBackgroundActiveBrush"));
    QVERIFY(fallen[0][text("before")].toDouble() > 14);
    QCOMPARE(fallen[0][text("after")].toDouble(), 1.0);
    QCOMPARE(fallen[0][text("demand")].toDouble(), 4.5);
    QVERIFY(pair.diff().output.contains(text(" -> 1.00, fell below 4.5\n")));

    qSwap(pair.before, pair.after);
    QVERIFY(pair.diff().output.contains(text("1.00 -> ")));
    QVERIFY(pair.diff().output.contains(text(", now meets 4.5\n")));

    // A contrast that stays good is not told.
    pair.before.colors.replace("#20282f", "#000000")
        .replace("'MainUpLevel1Color'>#000000", "'MainUpLevel1Color'>#dddddd");
    QVERIFY(pair.json()[text("contrasts")].toArray().isEmpty());
    QVERIFY(!pair.changes("colors").isEmpty());
}

void DifferencesTest::contrastsOfDisabledText()
{
    Pair pair;
    pair.before.colors += "<Color name='MainUpLevel1ColorDisabled'>#84919b</Color>";
    pair.after.colors += "<Color name='MainUpLevel1ColorDisabled'>#20282f</Color>";
    const QByteArray tabs =
        "<SolidBrush name='TabBackgroundActiveBrush'>BackgroundColor</SolidBrush>"
        "<SolidBrush name='TabBackgroundActiveBrushDisabled'>BackgroundColor</SolidBrush>";
    pair.before.brushes += tabs;
    pair.after.brushes += tabs;
    const QJsonArray contrasts = pair.json()[text("contrasts")].toArray();
    QCOMPARE(contrasts.size(), 1);
    QCOMPARE(contrasts[0][text("text")].toString(), text("MainUpLevel1ColorDisabled"));
    QCOMPARE(contrasts[0][text("demand")].toDouble(), 2.0);
}

QTEST_MAIN(DifferencesTest)
#include "DifferencesTest.moc"
