#include "color/ColorText.h"
#include "command_line/Terminal.h"
#include "commands/Commands.h"
#include "commands/ThemeCreation.h"
#include "generator/recipes/ThemeDefinition.h"
#include "import/SchemeFile.h"
#include "import/SchemeName.h"
#include "import/SchemeTokens.h"
#include "text/Literals.h"
#include "text/Wording.h"

#include <QtCore/QFileInfo>

namespace TARN::ThemeTool {

namespace {

QString describe(const ColorScheme &scheme)
{
    QString text = scheme.kind;
    if (!scheme.name.isEmpty()) {
        text += R"( "%1")"_s.arg(scheme.name);
    }
    if (!scheme.author.isEmpty()) {
        text += " by "_s + scheme.author;
    }
    return text;
}

/// Prints what the theme of \a tokens was made from, and the colours that could not stay.
void printOrigin(const ColorScheme &scheme, const Tokens &tokens)
{
    const QString kind = tokens.base == Base::Dark ? "dark"_s : "light"_s;
    print(onOneLine("It is a %1 theme, from the %2"_s.arg(kind, describe(scheme))) + "\n"_s);
    for (const MovedColor &moved : movedColors(scheme, defineTheme(tokens))) {
        print("  %1: %2 became %3, to be legible\n"_s.arg(moved.variable, colorText(moved.from),
                                                          colorText(moved.to)));
    }
}

} // namespace

int runCommand(const ImportOptions &options)
{
    ColorScheme scheme;
    const SchemeProblem problem = readScheme(options.file, scheme);
    if (!problem.text.isEmpty()) {
        return fail(located(options.file, problem));
    }

    const QString name =
        themeNameFrom({options.name, scheme.name, QFileInfo(options.file).completeBaseName()});
    const Tokens tokens = tokensFrom(scheme, name);
    const int exitCode = createTheme(tokens, options.out, options.force);
    if (exitCode == Fine) {
        printOrigin(scheme, tokens);
    }
    return exitCode;
}

} // namespace TARN::ThemeTool
