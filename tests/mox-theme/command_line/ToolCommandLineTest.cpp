#include <QtTest/QtTest>

#include <command_line/CommandLine.h>
#include <command_line/CommandTable.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

QStringList words(const QString &line)
{
    return line.split(u' ', Qt::SkipEmptyParts);
}

// Returns what the command line was understood as; null when it was something else.
template <typename Options>
std::unique_ptr<Options> read(const QStringList &arguments)
{
    const Request request = parseCommandLine(arguments);
    const auto *options = std::get_if<Options>(&request);
    return options ? std::make_unique<Options>(*options) : nullptr;
}

template <typename Options>
std::unique_ptr<Options> read(const QString &line)
{
    return read<Options>(words(line));
}

QString problemOf(const QStringList &arguments)
{
    const auto notice = read<Notice>(arguments);
    return notice && notice->kind == Notice::Kind::Problem ? notice->text : QString();
}

void addMistake(const char *line, const char *culprit, const char *help)
{
    QTest::newRow(line) << QString::fromUtf8(line) << QString::fromUtf8(culprit)
                        << QString::fromUtf8(help);
}

void addMistakesOfWords()
{
    addMistake("chek a", "'chek'", "'check'");
    addMistake("frobnicate", "'frobnicate'",
               "check, new, build, preview, diff, import and completion");
    addMistake("--verison", "'--verison'", "'--version'");
    addMistake("--format json check a", "'--format'", "behind");
}

void addMistakesOfCheck()
{
    addMistake("check --fromat json a", "check: unknown option '--fromat'", "'--format'");
    addMistake("check --version a", "'--version'", "--format, --rule, --all, -h and --help");
    addMistake("check -x a", "'-x'", "--all");
    addMistake("check", "DIR is missing", "mox-theme check [options] DIR...");
    addMistake("check a --format jason", "'jason'", "text, json, sarif or github");
    addMistake("check a --format", "'--format'", "text|json|sarif|github");
    addMistake("check a --format --all", "'--format' needs a value", "text|json|sarif|github");
    addMistake("check --format= a", "'--format' needs a value", "text|json|sarif|github");
    addMistake("check a --all=yes", "'--all'", "no value");
    addMistake("check a --format text --format json", "'--format'", "twice");
    addMistake("check a --rule low-contrst=off", "'low-contrst'", "'low-contrast'");
    addMistake("check a --rule nonsense=off", "'nonsense'", "low-contrast, missing-file,");
    addMistake("check a --rule low-contrast", "'low-contrast'", "low-contrast=off|warn|error");
    addMistake("check a --rule low-contrast=", "low-contrast", "off, warn or error");
    addMistake("check a --rule low-contrast=warning", "'warning'", "off, warn or error");
    addMistake("check a --rule =off", "''", "the rules are");
}

void addMistakesOfNew()
{
    addMistake("new --accent red", "NAME is missing", "--accent COLOUR NAME");
    addMistake("new A", "--accent is missing", "--accent COLOUR NAME");
    addMistake("new A B --accent red", "'B'", "--accent COLOUR NAME");
    addMistake("new A --accent red --base dusky", "'dusky'", "dark, light or high-contrast");
    addMistake("new A --accent reddish", "'reddish'", "#rrggbb");
    addMistake("new A --accent #12", "'#12'", "#rrggbb");
    addMistake("new A --accent #80ff0000", "'#80ff0000'", "not opaque");
    addMistake("new A --accent transparent", "'transparent'", "not opaque");
    addMistake("new a/b --accent red", "'a/b'", "'/'");
    addMistake("new . --accent red", "'.'", "begins with '.'");
    addMistake("new .. --accent red", "'..'", "begins with '.'");
    addMistake("new .A --accent red", "'.A'", "begins with '.'");
    addMistake("new --accent red -- -A", "'-A'", "begins with '-'");
    addMistake("new A\tB --accent red", "'A\tB'", "control character");
}

void addMistakesOfOthers()
{
    addMistake("build a.toml", "--out is missing", "--out DIR TOKENS");
    addMistake("build --out A", "TOKENS is missing", "--out DIR TOKENS");
    addMistake("preview", "DIR is missing", "preview [options] DIR");
    addMistake("preview A B", "'B'", "preview [options] DIR");
    addMistake("diff", "A and B are missing", "diff [options] A B");
    addMistake("diff a", "B is missing", "diff [options] A B");
    addMistake("diff a b c", "'c'", "diff [options] A B");
    addMistake("diff a b --format sarif", "'sarif'", "text or json");
    addMistake("import", "FILE is missing", "import [options] FILE");
    addMistake("import a --name b/c", "'b/c'", "'/'");
    addMistake("completion", "missing", "bash|zsh|fish");
    addMistake("completion tcsh", "'tcsh'", "bash, zsh and fish");
}

} // namespace

class ToolCommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void check();
    void checkTakesRules();
    void newTheme();
    void newThemeTakesAnyOpaqueColour();
    void build();
    void preview();
    void diff();
    void importing();
    void completion();
    void whatFollowsDashesIsNoOption();
    void commandsMayBeNamesOfFolders();
    void bracketsAreTextLikeAnyOther();
    void helpWinsOverMistakes();
    void helpNamesEveryCommandAndOption();
    void versionIsAnswered();
    void nothingIsAnsweredByGuidance();
    void mistakesAreNamed_data();
    void mistakesAreNamed();
    void emptyValuesAreRefused();
};

void ToolCommandLineTest::check()
{
    const auto plain = read<CheckOptions>("check a"_s);
    QVERIFY(plain);
    QCOMPARE(plain->directories, QStringList("a"_s));
    QVERIFY(plain->format == ReportFormat::Text);
    QVERIFY(!plain->all);
    QVERIFY(plain->rules.isEmpty());

    const auto full = read<CheckOptions>("check a --all b --format=sarif c"_s);
    QVERIFY(full);
    QCOMPARE(full->directories, words("a b c"_s));
    QVERIFY(full->format == ReportFormat::Sarif);
    QVERIFY(full->all);
    QVERIFY(read<CheckOptions>("check a --format json"_s)->format == ReportFormat::Json);
    QVERIFY(read<CheckOptions>("check a --format github"_s)->format == ReportFormat::Github);
}

void ToolCommandLineTest::checkTakesRules()
{
    const auto options =
        read<CheckOptions>("check --rule low-contrast=off --rule=unused-entry=error a "
                           "--rule missing-name=error --rule missing-name=warn b"_s);
    QVERIFY(options);
    QCOMPARE(options->directories, words("a b"_s));
    const QMap<QString, Severity> expected = {{"low-contrast"_s, Severity::Off},
                                              {"unused-entry"_s, Severity::Error},
                                              {"missing-name"_s, Severity::Warning}};
    QVERIFY(options->rules == expected);
}

void ToolCommandLineTest::newTheme()
{
    const auto plain = read<NewOptions>("new Harbour --accent #3d8fd1"_s);
    QVERIFY(plain);
    QCOMPARE(plain->name, "Harbour"_s);
    QCOMPARE(plain->accent, QColor(0x3d, 0x8f, 0xd1));
    QVERIFY(plain->base == Base::Dark);
    QCOMPARE(plain->out, "."_s);
    QVERIFY(!plain->force);

    const auto full =
        read<NewOptions>("new --base high-contrast --out=themes --accent teal --force Größe"_s);
    QVERIFY(full);
    QCOMPARE(full->name, "Größe"_s);
    QCOMPARE(full->accent, QColor(0, 0x80, 0x80));
    QVERIFY(full->base == Base::HighContrast);
    QCOMPARE(full->out, "themes"_s);
    QVERIFY(full->force);
    QVERIFY(read<NewOptions>("new A --accent red --base light"_s)->base == Base::Light);
}

void ToolCommandLineTest::newThemeTakesAnyOpaqueColour()
{
    for (const QString &word : words("#f00 #ff0000 #fff000000 #ffff00000000 #ffff0000 RED"_s)) {
        const auto options = read<NewOptions>({"new"_s, "A"_s, "--accent"_s, word});
        QVERIFY2(options, qPrintable(word));
        QCOMPARE(options->accent.rgba(), qRgb(255, 0, 0));
    }
    QCOMPARE(read<NewOptions>({"new"_s, "My theme"_s, "--accent=red"_s})->name, "My theme"_s);
}

void ToolCommandLineTest::build()
{
    const auto options = read<BuildOptions>("build a.toml --out themes/A"_s);
    QVERIFY(options);
    QCOMPARE(options->tokens, "a.toml"_s);
    QCOMPARE(options->out, "themes/A"_s);
}

void ToolCommandLineTest::preview()
{
    const auto plain = read<PreviewOptions>("preview A"_s);
    QVERIFY(plain);
    QCOMPARE(plain->directory, "A"_s);
    QCOMPARE(plain->out, QString());
    QVERIFY(!plain->watch);
    QCOMPARE(read<PreviewOptions>("preview --out a.png A"_s)->out, "a.png"_s);
    QVERIFY(read<PreviewOptions>("preview A --watch"_s)->watch);
}

void ToolCommandLineTest::diff()
{
    const auto plain = read<DiffOptions>("diff A B"_s);
    QVERIFY(plain);
    QCOMPARE(plain->before, "A"_s);
    QCOMPARE(plain->after, "B"_s);
    QVERIFY(plain->format == ReportFormat::Text);
    QVERIFY(read<DiffOptions>("diff A B --format json"_s)->format == ReportFormat::Json);
}

void ToolCommandLineTest::importing()
{
    const auto plain = read<ImportOptions>("import a.yaml"_s);
    QVERIFY(plain);
    QCOMPARE(plain->file, "a.yaml"_s);
    QCOMPARE(plain->name, QString());
    QCOMPARE(plain->out, "."_s);
    QVERIFY(!plain->force);

    const auto full = read<ImportOptions>("import a.yaml --name Ocean --out themes --force"_s);
    QVERIFY(full);
    QCOMPARE(full->name, "Ocean"_s);
    QCOMPARE(full->out, "themes"_s);
    QVERIFY(full->force);
}

void ToolCommandLineTest::completion()
{
    QVERIFY(read<CompletionOptions>("completion bash"_s)->shell == Shell::Bash);
    QVERIFY(read<CompletionOptions>("completion zsh"_s)->shell == Shell::Zsh);
    QVERIFY(read<CompletionOptions>("completion fish"_s)->shell == Shell::Fish);
}

void ToolCommandLineTest::whatFollowsDashesIsNoOption()
{
    QCOMPARE(read<CheckOptions>("check -- -a --all"_s)->directories, words("-a --all"_s));
    QCOMPARE(read<CheckOptions>("check a -- -b --help"_s)->directories, words("a -b --help"_s));
    QCOMPARE(read<DiffOptions>("diff a -- -b"_s)->after, "-b"_s);
    QCOMPARE(read<PreviewOptions>("preview a --"_s)->directory, "a"_s);
}

void ToolCommandLineTest::commandsMayBeNamesOfFolders()
{
    QCOMPARE(read<CheckOptions>("check new check build"_s)->directories,
             words("new check build"_s));
    QCOMPARE(read<NewOptions>("new check --accent red"_s)->name, "check"_s);
    QCOMPARE(read<BuildOptions>("build diff --out import"_s)->out, "import"_s);
}

void ToolCommandLineTest::bracketsAreTextLikeAnyOther()
{
    QCOMPARE(read<CheckOptions>("check [a,b] {} a,b"_s)->directories, words("[a,b] {} a,b"_s));
    QCOMPARE(read<BuildOptions>("build [a] --out [b,c]"_s)->out, "[b,c]"_s);
}

void ToolCommandLineTest::helpWinsOverMistakes()
{
    for (const QString &line : {"check --format jason --help"_s, "-h check"_s,
                                "check --format --help"_s, "check --nonsense -h"_s}) {
        const auto notice = read<Notice>(line);
        QVERIFY2(notice && notice->kind == Notice::Kind::Answer, qPrintable(line));
        QVERIFY(notice->text.startsWith("Usage: mox-theme check "_s));
    }
}

void ToolCommandLineTest::helpNamesEveryCommandAndOption()
{
    const auto overview = read<Notice>("--help"_s);
    QVERIFY(overview && overview->kind == Notice::Kind::Answer);
    QCOMPARE(commandDescriptions().size(), 7);
    for (const CommandDescription &command : commandDescriptions()) {
        QVERIFY(overview->text.contains("\n  "_s + command.name + u' '));
        const auto notice = read<Notice>(command.name + " --help"_s);
        QVERIFY(notice && notice->kind == Notice::Kind::Answer);
        for (const CommandDescription::Option &option : command.options) {
            QVERIFY2(notice->text.contains("\n  "_s + option.names.join(", "_s)),
                     qPrintable(option.names.constLast()));
        }
        for (const QString &line : notice->text.split(u'\n')) {
            QVERIFY2(line.size() <= 80, qPrintable(line));
        }
    }
}

void ToolCommandLineTest::versionIsAnswered()
{
    const auto notice = read<Notice>("--version"_s);
    QVERIFY(notice && notice->kind == Notice::Kind::Answer);
    QVERIFY(
        QRegularExpression("^mox-theme \\d+\\.\\d+\\.\\d+\n$"_s).match(notice->text).hasMatch());
}

void ToolCommandLineTest::nothingIsAnsweredByGuidance()
{
    const auto notice = read<Notice>(QStringList());
    QVERIFY(notice && notice->kind == Notice::Kind::Guidance);
    QCOMPARE(notice->text, read<Notice>("--help"_s)->text);
}

void ToolCommandLineTest::mistakesAreNamed_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("culprit");
    QTest::addColumn<QString>("help");
    addMistakesOfWords();
    addMistakesOfCheck();
    addMistakesOfNew();
    addMistakesOfOthers();
}

void ToolCommandLineTest::mistakesAreNamed()
{
    QFETCH(const QString, line);
    QFETCH(const QString, culprit);
    QFETCH(const QString, help);
    const QString problem = problemOf(words(line));
    QVERIFY2(problem.contains(culprit), qPrintable(problem));
    QVERIFY2(problem.contains(help), qPrintable(problem));
    QVERIFY(!problem.contains(u'\n'));
}

void ToolCommandLineTest::emptyValuesAreRefused()
{
    QVERIFY(problemOf({"check"_s, QString()}).contains("DIR"_s));
    QVERIFY(problemOf({"new"_s, QString(), "--accent=red"_s}).contains("NAME"_s));
    QVERIFY(problemOf({"new"_s, "  "_s, "--accent=red"_s}).contains("is empty"_s));
    QVERIFY(problemOf({"build"_s, "a"_s, "--out"_s, QString()}).contains("'--out' needs"_s));
    QVERIFY(problemOf({QString()}).contains("unknown command ''"_s));
}

QTEST_GUILESS_MAIN(ToolCommandLineTest)
#include "ToolCommandLineTest.moc"
