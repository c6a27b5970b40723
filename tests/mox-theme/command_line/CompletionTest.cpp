#include <QtTest/QtTest>

#include <check/model/RuleTable.h>
#include <command_line/completion/Scripts.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

// Prints what bash would offer for the words that are its arguments, and what it is told besides.
const char *const bashDriver = R"(
source "$1"
shift
compopt() { printf '%s\n' "$*"; }
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
_mox_theme
printf '%s\n' "${COMPREPLY[@]}"
)";

// Types its second argument into an interactive shell and prints what is offered.
const char *const zshDriver = R"(
zmodload zsh/zpty
zpty inner zsh -f -i
zpty -w inner "source ${(q)1:h}/setup.zsh ${(q)1}"
zpty -r inner output '*<READY>*'
zpty -w -n inner "$2"$'\t'
zpty -r inner output '*<END>*'
print -r -- ${(pj:\n:)${(M)${(s:|:)output}:#<offered>*}#<offered>}
zpty -d inner
)";

const char *const zshSetup = R"(
autoload -Uz compinit
compinit -u -D
source $1
compadd() {
    local -a matches
    builtin compadd -O matches "$@"
    (( $#matches )) && print -rn -- "|<offered>"${^matches}"|"
    builtin compadd "$@"
}
finish() { zle complete-word; print -n '<END>' }
zle -N finish
bindkey '^I' finish
print '<READY>'
)";

struct Run
{
    int exitCode = -1;
    QStringList lines;
    QString errors;
};

Run run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished()) {
        return {};
    }
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    return {process.exitCode(), output.split(u'\n', Qt::SkipEmptyParts),
            QString::fromUtf8(process.readAllStandardError())};
}

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.toUtf8().size();
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QStringList words(const QString &line)
{
    return sorted(line.split(u' ', Qt::SkipEmptyParts));
}

} // namespace

class CompletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bashOffers_data();
    void bashOffers();
    void bashOffersWholeWordsWhereItDoesNotSplitThem();
    void bashOffersEveryRule();
    void zshReadsItsScript();
    void zshOffers_data();
    void zshOffers();
    void fishReadsItsScript();
    void fishOffers_data();
    void fishOffers();
    void fishOffersFoldersAndFiles();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void CompletionTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QVERIFY(write(path("script.bash"_s), bashScript()));
    QVERIFY(write(path("script.zsh"_s), zshScript()));
    QVERIFY(write(path("script.fish"_s), fishScript()));
    QVERIFY(write(path("driver.bash"_s), QString::fromUtf8(bashDriver)));
    QVERIFY(write(path("driver.zsh"_s), QString::fromUtf8(zshDriver)));
    QVERIFY(write(path("setup.zsh"_s), QString::fromUtf8(zshSetup)));
}

void CompletionTest::bashOffers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("offered");
    const auto row = [](const char *line, const char *offered) {
        QTest::newRow(line) << QString::fromUtf8(line) << QString::fromUtf8(offered);
    };
    // The words as bash splits them, the last being the one at the cursor; "_" is an empty one.
    row("_", "check new build preview diff import completion");
    row("ch", "check");
    row("--", "--help --version");
    row("check -", "--format --rule --all -h --help");
    row("check --format _", "text json sarif github");
    row("check --format = j", "json");
    row("diff --format _", "text json");
    row("new --base l", "light");
    row("new --base = d", "dark");
    row("new A --base _", "dark light high-contrast");
    row("new _", "");
    row("completion _", "bash zsh fish");
    row("completion bash _", "");
    // A rule's name first, then what it counts as; of the latter bash wants what is behind "=".
    row("check --rule low", "-onospace low-contrast=");
    row("check --rule low-contrast =", "off warn error");
    row("check --rule low-contrast = w", "warn");
    row("check --rule = low-contrast = e", "error");
    row("check _", "-odirnames");
    row("check --all a b _", "-odirnames");
    row("check --format json _", "-odirnames");
    row("check -- --", "-odirnames");
    row("new --out _", "-odirnames");
    row("build _", "-odefault");
    row("build a.toml _", "");
    row("preview --out _", "-odefault");
    row("preview --out a.png _", "-odirnames");
    row("diff a _", "-odirnames");
    row("diff a b _", "");
    row("import _", "-odefault");
}

void CompletionTest::bashOffers()
{
    QFETCH(const QString, line);
    QFETCH(const QString, offered);
    QStringList arguments = {path("driver.bash"_s), path("script.bash"_s), "mox-theme"_s};
    for (const QString &word : line.split(u' ')) {
        arguments.append(word == "_"_s ? QString() : word);
    }
    const Run result = run("bash"_s, arguments);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(sorted(QStringList(result.lines).replaceInStrings("-o "_s, "-o"_s)), words(offered));
}

void CompletionTest::bashOffersWholeWordsWhereItDoesNotSplitThem()
{
    QVERIFY(write(path("whole.bash"_s), "COMP_WORDBREAKS=' '\n"_s + QString::fromUtf8(bashDriver)));
    const QStringList start = {path("whole.bash"_s), path("script.bash"_s), "mox-theme"_s,
                               "check"_s};
    QCOMPARE(run("bash"_s, start + QStringList("--format=j"_s)).lines,
             QStringList("--format=json"_s));
    QCOMPARE(run("bash"_s, start + QStringList({"--rule"_s, "low-contrast=e"_s})).lines,
             QStringList("low-contrast=error"_s));
}

void CompletionTest::bashOffersEveryRule()
{
    QStringList names = {"-o nospace"_s};
    for (const Rule &rule : rules()) {
        names.append(rule.name + u'=');
    }
    const Run result = run("bash"_s, {path("driver.bash"_s), path("script.bash"_s), "mox-theme"_s,
                                      "check"_s, "--rule"_s, QString()});
    QCOMPARE(sorted(result.lines), sorted(names));
}

void CompletionTest::zshReadsItsScript()
{
    if (QStandardPaths::findExecutable("zsh"_s).isEmpty()) {
        QSKIP("zsh is not installed");
    }
    const Run result = run("zsh"_s, {"-n"_s, path("script.zsh"_s)});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.exitCode, 0);
}

void CompletionTest::zshOffers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("offered");
    QTest::newRow("commands") << "mox-theme "_s
                              << "check new build preview diff import completion"_s;
    QTest::newRow("options") << "mox-theme check --f"_s
                             << "--format"_s;
    QTest::newRow("values") << "mox-theme check --format "_s
                            << "text json sarif github"_s;
    QTest::newRow("joined values") << "mox-theme new A --base=l"_s
                                   << "light"_s;
    QTest::newRow("rules") << "mox-theme check --rule low"_s
                           << "low-contrast"_s;
    QTest::newRow("severities") << "mox-theme check --rule low-contrast="_s
                                << "off warn error"_s;
    QTest::newRow("shells") << "mox-theme completion "_s
                            << "bash zsh fish"_s;
}

void CompletionTest::zshOffers()
{
    if (QStandardPaths::findExecutable("zsh"_s).isEmpty()) {
        QSKIP("zsh is not installed");
    }
    QFETCH(const QString, line);
    QFETCH(const QString, offered);
    const Run result = run("zsh"_s, {"-f"_s, path("driver.zsh"_s), path("script.zsh"_s), line});
    QCOMPARE(result.errors, QString());
    // The completion system may ask several times before it decides.
    QStringList lines = result.lines;
    lines.removeDuplicates();
    QCOMPARE(sorted(lines), words(offered));
}

void CompletionTest::fishReadsItsScript()
{
    if (QStandardPaths::findExecutable("fish"_s).isEmpty()) {
        QSKIP("fish is not installed");
    }
    const Run result = run("fish"_s, {"-N"_s, "-n"_s, path("script.fish"_s)});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.exitCode, 0);
}

void CompletionTest::fishOffers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("offered");
    QTest::newRow("commands") << QString() << "check new build preview diff import completion"_s;
    QTest::newRow("the tool's options") << "--"_s
                                        << "--help --version"_s;
    QTest::newRow("a command's options") << "new --"_s
                                         << "--base --accent --out --force --help"_s;
    QTest::newRow("values") << "check --format "_s
                            << "text json sarif github"_s;
    QTest::newRow("joined values") << "diff --format=j"_s
                                   << "--format=json"_s;
    QTest::newRow("rules") << "check --rule low"_s
                           << "low-contrast=off low-contrast=warn low-contrast=error"_s;
    QTest::newRow("shells") << "completion "_s
                            << "bash zsh fish"_s;
    QTest::newRow("after the last argument") << "completion bash "_s << QString();
    QTest::newRow("a name") << "new "_s << QString();
    QTest::newRow("a command's name as an argument") << "new check --f"_s
                                                     << "--force"_s;
}

void CompletionTest::fishOffers()
{
    if (QStandardPaths::findExecutable("fish"_s).isEmpty()) {
        QSKIP("fish is not installed");
    }
    QFETCH(const QString, line);
    QFETCH(const QString, offered);
    const Run result = run("fish"_s, {"-N"_s, "-c"_s, "source $argv[1]; complete -C $argv[2]"_s,
                                      path("script.fish"_s), "mox-theme "_s + line});
    QCOMPARE(result.errors, QString());
    QStringList found;
    for (const QString &entry : result.lines) {
        found.append(entry.section(u'\t', 0, 0));
    }
    QCOMPARE(sorted(found), words(offered));
}

void CompletionTest::fishOffersFoldersAndFiles()
{
    if (QStandardPaths::findExecutable("fish"_s).isEmpty()) {
        QSKIP("fish is not installed");
    }
    QVERIFY(QDir(m_folder.path()).mkpath("place/folder"_s));
    QVERIFY(write(path("place/file"_s), QString()));
    const auto offered = [this](const QString &line) {
        const QString script = "cd $argv[2]; source $argv[1]; complete -C $argv[3]"_s;
        const Run result =
            run("fish"_s, {"-N"_s, "-c"_s, script, path("script.fish"_s), path("place"_s), line});
        QStringList found;
        for (const QString &entry : result.lines) {
            found.append(entry.section(u'\t', 0, 0));
        }
        return sorted(found);
    };
    QCOMPARE(offered("mox-theme check "_s), words("folder/"_s));
    QCOMPARE(offered("mox-theme build a --out "_s), words("folder/"_s));
    QCOMPARE(offered("mox-theme import "_s), words("file folder/"_s));
    QCOMPARE(offered("mox-theme diff a b "_s), QStringList());
}

QTEST_GUILESS_MAIN(CompletionTest)
#include "CompletionTest.moc"
