#include "command_line/Terminal.h"
#include "commands/Commands.h"
#include "commands/ThemeCreation.h"
#include "generator/files/ThemeWriter.h"
#include "generator/recipes/ThemeDefinition.h"
#include "text/Literals.h"
#include "text/Wording.h"

namespace TARN::ThemeTool {

namespace {

/// Returns where \a problem is, as editors understand it.
QString place(const QString &file, const TokenProblem &problem)
{
    return problem.line == 0 ? file
                             : "%1:%2:%3"_s.arg(file, QString::number(problem.line),
                                                QString::number(problem.column));
}

} // namespace

int runCommand(const BuildOptions &options)
{
    Tokens tokens;
    TokenProblem problem = readTokens(options.tokens, tokens);
    if (problem.text.isEmpty()) {
        problem = overrideProblem(tokens);
    }
    if (!problem.text.isEmpty()) {
        return fail(place(options.tokens, problem) + ": "_s + problem.text);
    }
    const QString writeProblem = writeTheme(defineTheme(tokens), options.out);
    if (!writeProblem.isEmpty()) {
        return fail(writeProblem);
    }
    print(onOneLine("Wrote the theme "_s + options.out) + "\n"_s);
    print(nextSteps(options.out));
    return Fine;
}

} // namespace TARN::ThemeTool
