#include <QtTest/QtTest>

#include <check/model/RuleTable.h>
#include <command_line/CommandLine.h>
#include <command_line/CommandTable.h>
#include <generator/recipes/Scheme.h>
#include <mox-theme/support/JsonSchema.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

const QString guide = QStringLiteral("docs/theme-guide.md");
const QString tokenReference = QStringLiteral("docs/token-file.md");
const QString ruleReference = QStringLiteral("docs/theme-check.md");

QDir sourceFolder()
{
    return QDir(QStringLiteral(MOX_SOURCE_FOLDER));
}

// The pages for people, by their paths below the source folder.
QStringList pages()
{
    QStringList paths{"README.md"_s, "CONTRIBUTING.md"_s};
    for (const QString &name : QDir(sourceFolder().filePath("docs"_s)).entryList({"*.md"_s})) {
        paths.append("docs/"_s + name);
    }
    return paths;
}

QString read(const QString &page)
{
    QFile file(sourceFolder().filePath(page));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QVector<QRegularExpressionMatch> matchesIn(const QString &text, const QString &pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    QVector<QRegularExpressionMatch> matches;
    auto match = expression.globalMatch(text);
    while (match.hasNext()) {
        matches.append(match.next());
    }
    return matches;
}

QStringList captured(const QString &text, const QString &pattern)
{
    QStringList texts;
    for (const QRegularExpressionMatch &match : matchesIn(text, pattern)) {
        texts.append(match.captured(1));
    }
    return texts;
}

// The lines of the blocks of code in text.
QStringList codeLines(const QString &text)
{
    QStringList lines;
    bool isCode = false;
    for (const QString &line : text.split(u'\n')) {
        const bool isFence = line.trimmed().startsWith("```"_s);
        isCode = isCode != isFence;
        if (isCode && !isFence) {
            lines.append(line);
        }
    }
    return lines;
}

// Returns the words of a shell command up to where its output goes.
QStringList words(const QString &command)
{
    QStringList words;
    for (const QString &word : QProcess::splitCommand(QString(command).replace(u'\'', u'"'))) {
        if (word == ">"_s || word == "&&"_s) {
            break;
        }
        words.append(word);
    }
    return words;
}

// Returns what the tool has against command, which begins behind its name; empty when nothing.
QString complaint(const QString &command)
{
    const Request request = parseCommandLine(words(command));
    const auto *const notice = std::get_if<Notice>(&request);
    return notice && notice->kind == Notice::Kind::Problem ? notice->text : QString();
}

QStringList optionsOf(const CommandDescription &command)
{
    QStringList names;
    for (const CommandDescription::Option &option : command.options) {
        names += option.names;
    }
    return names;
}

// The options of each command by its name.
QMap<QString, QStringList> commands()
{
    QMap<QString, QStringList> commands;
    for (const CommandDescription &command : commandDescriptions()) {
        commands.insert(command.name, optionsOf(command));
    }
    return commands;
}

// The anchors of the headings in text.
QStringList anchors(const QString &text)
{
    QStringList anchors;
    for (QString heading : captured(text, "^#+ (.*)$"_s)) {
        heading = heading.toLower().remove(QRegularExpression(R"([^\w -])"_s));
        anchors.append(heading.replace(u' ', u'-'));
    }
    return anchors;
}

// The part of text below the heading title, up to the next heading of whatever level.
QString below(const QString &text, const QString &title)
{
    const int begin = text.indexOf(u'\n' + title + u'\n');
    const int end = text.indexOf("\n#"_s, begin + 1);
    return begin < 0 ? QString() : text.mid(begin, end < 0 ? -1 : end - begin);
}

} // namespace

class DocumentationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandLinesAreUnderstood();
    void namedCommandsAndOptionsExist();
    void optionsInTheTextExist();
    void theGuideNamesEveryCommand();
    void everyRuleIsExplained();
    void everyTokenIsExplained();
    void everyColorIsListed();
    void jsonExamplesFitTheirSchemas();
    void linksLeadSomewhere();
};

void DocumentationTest::commandLinesAreUnderstood()
{
    int count = 0;
    for (const QString &page : pages()) {
        for (const QString &line : codeLines(read(page))) {
            const QStringList command = captured(line, R"(^\s*(?:\$ |run: )?mox-theme (.+)$)"_s);
            if (!command.isEmpty()) {
                ++count;
                QVERIFY2(
                    complaint(command.constFirst()).isEmpty(),
                    qPrintable(page + ": "_s + line + ": "_s + complaint(command.constFirst())));
            }
        }
    }
    QVERIFY(count > 20);
}

void DocumentationTest::namedCommandsAndOptionsExist()
{
    const QMap<QString, QStringList> known = commands();
    int count = 0;
    for (const QString &page : pages()) {
        for (const QString &span : captured(read(page), "`mox-theme ([^`\n]+)`"_s)) {
            const QStringList parts = words(span);
            const QString name = parts.value(0);
            ++count;
            QVERIFY2(known.contains(name), qPrintable(page + ": "_s + span));
            for (const QString &option : parts.filter(QRegularExpression("^--"_s))) {
                QVERIFY2(known.value(name).contains(option), qPrintable(page + ": "_s + span));
            }
        }
    }
    QVERIFY(count > 5);
}

void DocumentationTest::optionsInTheTextExist()
{
    // Those that every themed application takes.
    QStringList known{"--theme"_s, "--theme-repository"_s};
    for (const QStringList &options : commands()) {
        known += options;
    }
    for (const QString &page : {guide, tokenReference, ruleReference}) {
        const QStringList options = captured(read(page), R"(`(--[\w-]+))"_s);
        for (const QString &option : options) {
            QVERIFY2(known.contains(option), qPrintable(page + ": "_s + option));
        }
    }
}

void DocumentationTest::theGuideNamesEveryCommand()
{
    const QString text = read(guide);
    for (const QString &name : commands().keys()) {
        QVERIFY2(text.contains("mox-theme "_s + name), qPrintable(name));
    }
}

void DocumentationTest::everyRuleIsExplained()
{
    const QString text = read(ruleReference);
    QStringList explained = captured(text, "^### (.*)$"_s);
    explained.sort();
    QStringList known;
    for (const Rule &rule : rules()) {
        known.append(rule.name);
        QVERIFY2(below(text, "### "_s + rule.name).contains("["_s + rule.name + "]\n"_s),
                 qPrintable(rule.name + " has no example"_s));
    }
    QCOMPARE(explained, known);
}

void DocumentationTest::everyTokenIsExplained()
{
    Tokens tokens;
    tokens.name = "Any"_s;
    tokens.accent = Qt::blue;
    const QString text = read(tokenReference);
    QString heading = "## At the top"_s;
    int count = 0;
    for (const QString &line : tokenFile(tokens).split(u'\n')) {
        const QStringList table = captured(line, R"(^(\[\w+\])$)"_s);
        if (!table.isEmpty()) {
            heading = "## `%1`"_s.arg(table.constFirst());
            QVERIFY2(text.contains(u'\n' + heading + u'\n'), qPrintable(heading));
        }
        const auto entry = matchesIn(line, R"(^(\w+) = (.+)$)"_s).value(0);
        if (!entry.hasMatch()) {
            continue;
        }
        ++count;
        const bool isMandatory = QStringList{"name"_s, "accent"_s}.contains(entry.captured(1));
        const QString fallback = isMandatory ? "must be given"_s : u'`' + entry.captured(2) + u'`';
        const QString row = R"(^\| `%1` \| .* \| (%2) \|$)"_s.arg(
            entry.captured(1), QRegularExpression::escape(fallback));
        QVERIFY2(captured(below(text, heading), row).size() == 1,
                 qPrintable(heading + ": "_s + line));
    }
    QCOMPARE(count, 14);
}

void DocumentationTest::everyColorIsListed()
{
    const QString listing = below(read(tokenReference), "## Names of colours"_s);
    QStringList listed = captured(listing, R"(`(\w+Color)`)"_s);
    listed.removeDuplicates();
    listed.sort();
    QStringList known;
    for (const ColorRecipe &recipe : colorRecipes()) {
        known.append(recipe.name);
    }
    known.sort();
    QCOMPARE(listed, known);
}

void DocumentationTest::jsonExamplesFitTheirSchemas()
{
    const QDir tool(sourceFolder().filePath("apps/mox-theme"_s));
    const QMap<QString, QString> schemas{{"check"_s, "check/reports/report.schema.json"_s},
                                         {"diff"_s, "compare/diff.schema.json"_s}};
    const auto examples =
        matchesIn(read(ruleReference), R"(^\$ mox-theme (\w+) --format json .*\n(\{[^`]*)```$)"_s);
    QCOMPARE(examples.size(), schemas.size());
    for (const QRegularExpressionMatch &example : examples) {
        const QString schema = schemas.value(example.captured(1));
        QCOMPARE(schemaProblem(example.captured(2).toUtf8(), tool.filePath(schema)), QString());
    }
}

void DocumentationTest::linksLeadSomewhere()
{
    int count = 0;
    for (const QString &page : pages()) {
        const QDir folder = QFileInfo(sourceFolder().filePath(page)).dir();
        for (const QString &link : captured(read(page), R"(\]\(([^)\s]+)\))"_s)) {
            if (link.startsWith("https:"_s)) {
                continue;
            }
            ++count;
            const QString path = link.section(u'#', 0, 0);
            const QString anchor = link.section(u'#', 1);
            const QString target =
                path.isEmpty() ? sourceFolder().filePath(page) : folder.filePath(path);
            QVERIFY2(QFileInfo::exists(target), qPrintable(page + ": "_s + link));
            QVERIFY2(anchor.isEmpty() || anchors(read(target)).contains(anchor),
                     qPrintable(page + ": "_s + link));
        }
    }
    QVERIFY(count > 20);
}

QTEST_GUILESS_MAIN(DocumentationTest)
#include "DocumentationTest.moc"
