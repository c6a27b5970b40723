#include "color/ColorText.h"
#include "command_line/Terminal.h"
#include "commands/Commands.h"
#include "commands/ThemeCreation.h"
#include "generator/recipes/ThemeDefinition.h"
#include "generator/tokens/ThemeName.h"
#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

/// Returns what became of the accent of \a tokens, as a line; empty when it is as it was.
QString movedAccent(const Tokens &tokens)
{
    for (const Section<ColorEntry> &section : defineTheme(tokens).colors) {
        for (const ColorEntry &entry : section.entries) {
            if (entry.name == "MainColor"_s && entry.color.rgb() != tokens.accent.rgb()) {
                return "The accent %1 became %2, to be legible\n"_s.arg(colorText(tokens.accent),
                                                                        colorText(entry.color));
            }
        }
    }
    return {};
}

} // namespace

int runCommand(const NewOptions &options)
{
    const QString problem = themeNameProblem(options.name);
    if (!problem.isEmpty()) {
        return fail(R"(the name "%1" )"_s.arg(options.name) + problem);
    }
    Tokens tokens;
    tokens.name = options.name;
    tokens.base = options.base;
    tokens.accent = options.accent;
    const int exitCode = createTheme(tokens, options.out, options.force);
    if (exitCode == Fine) {
        print(movedAccent(tokens));
    }
    return exitCode;
}

} // namespace TARN::ThemeTool
