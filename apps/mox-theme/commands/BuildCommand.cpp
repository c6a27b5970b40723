#include "command_line/Terminal.h"
#include "commands/Commands.h"
#include "commands/ThemeCreation.h"
#include "generator/files/ThemeWriter.h"
#include "generator/recipes/ThemeDefinition.h"
#include "text/Literals.h"
#include "text/Wording.h"

namespace TARN::ThemeTool {

int runCommand(const BuildOptions &options)
{
    Tokens tokens;
    TokenProblem problem = readTokens(options.tokens, tokens);
    if (problem.text.isEmpty()) {
        problem = overrideProblem(tokens);
    }
    if (!problem.text.isEmpty()) {
        return fail(located(options.tokens, problem));
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
