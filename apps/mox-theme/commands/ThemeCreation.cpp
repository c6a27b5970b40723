#include "commands/ThemeCreation.h"

#include "command_line/Terminal.h"
#include "command_line/completion/Scripts.h"
#include "commands/Commands.h"
#include "generator/files/ThemeFolder.h"
#include "generator/files/ThemeWriter.h"
#include "generator/recipes/ThemeDefinition.h"
#include "text/Literals.h"
#include "text/Wording.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QSaveFile>

namespace TARN::ThemeTool {

namespace {

/// Returns \a path as it is typed in a shell.
QString typed(const QString &path)
{
    static const QRegularExpression plain("^[A-Za-z0-9_./+][A-Za-z0-9_./+-]*$"_s);
    return plain.match(path).hasMatch() ? path : shellQuoted(path);
}

/// Returns one line that says why \a text was not written to the file at \a path; empty when it
/// was.
QString writeText(const QString &path, const QString &text)
{
    QSaveFile file(path);
    const QByteArray content = text.toUtf8();
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    return isWritten ? QString() : "cannot write %1: %2"_s.arg(path, file.errorString());
}

} // namespace

QString nextSteps(const QString &directory, const QString &tokenFile)
{
    QString steps = onOneLine("Next: mox-theme preview "_s + typed(directory)) + "\n"_s +
                    onOneLine("      mox-theme check "_s + typed(directory)) + "\n"_s;
    if (!tokenFile.isEmpty()) {
        steps += "After a change of the token file:\n"_s +
                 onOneLine("      mox-theme build %1 --out %2"_s.arg(typed(tokenFile),
                                                                     typed(directory))) +
                 "\n"_s;
    }
    return steps;
}

QString located(const QString &path, const TokenProblem &problem)
{
    QString place = path;
    for (const int number : {problem.line, problem.column}) {
        if (number > 0) {
            place += u':' + QString::number(number);
        }
    }
    return place + ": "_s + problem.text;
}

int createTheme(const Tokens &tokens, const QString &repository, bool force)
{
    const QString directory = QDir::cleanPath(repository + QLatin1Char('/') + tokens.name);
    if (folderKind(directory) == FolderKind::Theme && !force) {
        return fail("%1 is there already; --force writes over it"_s.arg(directory));
    }
    QString problem = overrideProblem(tokens).text;
    if (problem.isEmpty()) {
        problem = writeTheme(defineTheme(tokens), directory);
    }
    if (!problem.isEmpty()) {
        return fail(problem);
    }
    print(onOneLine("Wrote the theme "_s + directory) + "\n"_s);

    // What is there is the author's work.
    const QString tokenPath = directory + ".toml"_s;
    if (QFileInfo::exists(tokenPath)) {
        print(onOneLine(tokenPath +
                        " was there already and is as it was; the theme is not made of it"_s) +
              "\n"_s);
    } else {
        problem = writeText(tokenPath, tokenFile(tokens));
        if (!problem.isEmpty()) {
            return fail(problem);
        }
        print(onOneLine("Wrote %1, what the theme is made of"_s.arg(tokenPath)) + "\n"_s);
    }
    print(nextSteps(directory, tokenPath));
    return Fine;
}

} // namespace TARN::ThemeTool
