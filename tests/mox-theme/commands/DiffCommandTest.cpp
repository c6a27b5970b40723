#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

#include <commands/Commands.h>
#include <mox-theme/support/JsonSchema.h>
#include <mox-theme/support/Printed.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN::ThemeTool;

namespace {

Printed diff(const QString &before, const QString &after, ReportFormat format = ReportFormat::Text)
{
    DiffOptions options;
    options.before = before;
    options.after = after;
    options.format = format;
    return printedBy([&options] { return runCommand(options); });
}

QJsonObject jsonDiff(const QString &before, const QString &after)
{
    const Printed printed = diff(before, after, ReportFormat::Json);
    return QJsonDocument::fromJson(printed.output.toUtf8()).object();
}

/// A theme of two colours; brushes and roles that refer to them in every way.
ThemeConfiguration plainConfiguration()
{
    ThemeConfiguration configuration;
    configuration.colors = "<Color name='MainColor'>#1a6fae</Color>"
                           "<Color name='BackgroundColor'>#20282f</Color>";
    configuration.brushes =
        "<SolidBrush name='MainBrush'>MainColor</SolidBrush>"
        "<SolidBrush name='FaintBrush'>DisabledMainColor</SolidBrush>"
        "<SolidBrush name='BackgroundBrush'>BackgroundColor</SolidBrush>"
        "<LinearGradientBrush name='ShadedBrush' startPoint='0,0' endPoint='0,1'>"
        "<GradientStop offset='0'>MainColor</GradientStop>"
        "<GradientStop offset='1'>BackgroundColor</GradientStop></LinearGradientBrush>";
    configuration.opacities = "<Opacity name='RubberBandOpacity'>0.25</Opacity>";
    configuration.factors = "<Factor name='DarkForegroundDisableFactor'>250</Factor>";
    return configuration;
}

const QByteArray plainRoles = "<ColorRole role='Link'><ColorGroup group='All'>@MainColor"
                              "</ColorGroup></ColorRole>"
                              "<ColorRole role='Base'><ColorGroup group='Active'>@ShadedBrush"
                              "</ColorGroup></ColorRole>";

/// Two themes of one name that differ in what a test changes.
class Pair
{
public:
    ThemeConfiguration before = plainConfiguration();
    ThemeConfiguration after = plainConfiguration();
    QByteArray rolesBefore = plainRoles;
    QByteArray rolesAfter = plainRoles;

    /// Writes a file of both themes, or of one.
    void write(const char *path, const QByteArray &contentBefore, const QByteArray &contentAfter)
    {
        m_before.write(text("Plain/") + text(path), contentBefore);
        m_after.write(text("Plain/") + text(path), contentAfter);
    }
    void writeBefore(const char *path) { m_before.write(text("Plain/") + text(path), "x"); }
    void writeAfter(const char *path) { m_after.write(text("Plain/") + text(path), "x"); }

    Printed diff(ReportFormat format = ReportFormat::Text) const
    {
        return ::diff(m_before.addTheme(text("Plain"), before, rolesBefore),
                      m_after.addTheme(text("Plain"), after, rolesAfter), format);
    }

    QJsonObject json() const
    {
        return QJsonDocument::fromJson(diff(ReportFormat::Json).output.toUtf8()).object();
    }

    /// Returns the changes of one section, of which there are some.
    QVector<QJsonObject> changes(const char *section) const
    {
        QVector<QJsonObject> changes;
        for (const QJsonValue &change : json()[text("changes")].toArray()) {
            if (change[text("section")] == text(section)) {
                changes.append(change.toObject());
            }
        }
        return changes;
    }

private:
    ThemeRepository m_before;
    ThemeRepository m_after;
};

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

/// What the command "diff" prints and returns.
class DiffCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalThemesDoNotDiffer();
    void spellingIsNoDifference();
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
    void foldersCanBeRelative();
    void imagesOfAnotherName();
    void contrastsThatFallAndRise();
    void contrastsOfDisabledText();
    void textForPeople();
    void jsonFitsItsSchema();
    void shippedThemesDiffer();
    void faultyEntriesAreNoted();
    void unreadableThemes_data();
    void unreadableThemes();
};

void DiffCommandTest::equalThemesDoNotDiffer()
{
    Pair pair;
    pair.write("Images/Plain/scalable/a.svg", "x", "x");
    const Printed printed = pair.diff();
    QCOMPARE(printed.output, text("No differences\n"));
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Fine));
}

void DiffCommandTest::spellingIsNoDifference()
{
    Pair pair;
    pair.before.colors = "<Color name='A'>#fff</Color><Color name='B'>red</Color>";
    pair.after.colors = "<!-- --><Color name='B'>#FF0000</Color><Color name='A'>#ffffff</Color>";
    pair.before.brushes.clear();
    pair.after.brushes.clear();
    pair.rolesBefore.clear();
    pair.rolesAfter.clear();
    QCOMPARE(pair.diff().output, text("No differences\n"));
}

void DiffCommandTest::aColourIsToldOnceWithItsFollowers()
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

void DiffCommandTest::theLargestChangeComesFirst()
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

void DiffCommandTest::addedAndRemoved()
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

void DiffCommandTest::brushesAreToldThatReferElsewhere()
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

void DiffCommandTest::gradientsAreToldByTheirStops()
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

void DiffCommandTest::paletteRolesJoinTheirGroups()
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

void DiffCommandTest::paletteRolesFollowBrushes()
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

void DiffCommandTest::fonts()
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

void DiffCommandTest::numbers()
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

void DiffCommandTest::files()
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

void DiffCommandTest::foldersCanBeRelative()
{
    const ThemeRepository repository;
    repository.write(text("Plain/Images/Plain/scalable/same.svg"), "same");
    repository.addTheme(text("Plain"), plainConfiguration(), plainRoles);
    QVERIFY(QDir::setCurrent(repository.path()));
    QCOMPARE(diff(text("Plain"), repository.path(text("Plain"))).exitCode, int(Fine));
}

void DiffCommandTest::imagesOfAnotherName()
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

void DiffCommandTest::contrastsThatFallAndRise()
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

void DiffCommandTest::contrastsOfDisabledText()
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

void DiffCommandTest::textForPeople()
{
    Pair pair;
    pair.before.colors += "<Color name='Old'>#ffffff</Color>";
    pair.after.colors.replace("#1a6fae", "#1a6faf");
    pair.after.opacities.replace("0.25", "0.5");
    pair.rolesAfter.replace("@ShadedBrush", "@MainColor");
    QCOMPARE(pair.diff().output,
             text("Colours\n"
                  "  - Old        #FFFFFF\n"
                  "  ~ MainColor  #1A6FAE -> #1A6FAF, invisible (0.00), "
                  "3 brushes and 3 palette entries follow\n"
                  "\n"
                  "Palette\n"
                  "  ~ Base  @ShadedBrush -> @MainColor, strong (0.27), in Active\n"
                  "\n"
                  "Opacities\n"
                  "  ~ RubberBandOpacity  0.25 -> 0.5\n"
                  "\n"
                  "4 differences; changes of colour: 1 strong, 1 invisible\n"));
}

void DiffCommandTest::jsonFitsItsSchema()
{
    for (const char *other : {"/Light", "/Dark"}) {
        const Printed printed =
            diff(text(MOX_THEMES "/Dark"), text(MOX_THEMES) + text(other), ReportFormat::Json);
        QCOMPARE(schemaProblem(printed.output.toUtf8(), text(MOX_DIFF_SCHEMA)), QString());
    }
}

void DiffCommandTest::shippedThemesDiffer()
{
    const Printed printed = diff(text(MOX_THEMES "/Dark"), text(MOX_THEMES "/Light"));
    QCOMPARE(printed.problems, QString());
    QCOMPARE(printed.exitCode, int(Findings));
    QVERIFY(printed.output.contains(text("Colours\n")));
}

void DiffCommandTest::faultyEntriesAreNoted()
{
    Pair pair;
    pair.after.colors += "<Color name='Bad'>nothing</Color><Color name='Lost'>#123456</Color>";
    const Printed printed = pair.diff();
    QCOMPARE(printed.output, text("No differences\n"));
    QVERIFY(printed.problems.contains(text("config.xml: has a faulty entry")));
    QCOMPARE(printed.problems.count(QLatin1Char('\n')), 1);
    QCOMPARE(printed.exitCode, int(Fine));
}

void DiffCommandTest::unreadableThemes_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no folder") << QString() << QByteArray();
    QTest::newRow("description") << text("Bad/theme.xml") << QByteArray("<theme>");
    QTest::newRow("configuration") << text("Bad/config.xml") << QByteArray("<Config>\n<Palette>");
}

void DiffCommandTest::unreadableThemes()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);

    const ThemeRepository repository;
    const QString good = repository.addTheme(text("Good"));
    if (!file.isEmpty()) {
        repository.addTheme(text("Bad"));
        repository.write(file, content);
    }
    for (const Printed &printed :
         {diff(good, repository.path(text("Bad"))), diff(repository.path(text("Bad")), good)}) {
        QCOMPARE(printed.output, QString());
        QVERIFY2(printed.problems.contains(repository.path(text("Bad"))),
                 qPrintable(printed.problems));
        QCOMPARE(printed.problems.count(QLatin1Char('\n')), 1);
        QCOMPARE(printed.exitCode, int(CannotRun));
    }
}

QTEST_MAIN(DiffCommandTest)
#include "DiffCommandTest.moc"
