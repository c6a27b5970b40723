#include "color/ColorText.h"
#include "command_line/Terminal.h"
#include "commands/Commands.h"
#include "commands/ThemeCreation.h"
#include "generator/recipes/ThemeDefinition.h"
#include "import/Base16.h"
#include "import/KdeColors.h"
#include "import/SchemeTokens.h"
#include "text/Literals.h"
#include "text/Wording.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

namespace TARN::ThemeTool {

namespace {

/// In bytes. Far more than any scheme needs; whatever is larger is something else.
constexpr qint64 LargestFile = 1048576;

/// In letters, of which file systems take 255 bytes.
constexpr int LongestName = 60;

/// Reads the file at \a path into \a content. Returns what went wrong; empty when nothing did.
QString readFile(const QString &path, QByteArray &content)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return "does not exist"_s;
    }
    if (!info.isFile()) {
        return "is not a file"_s;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return "cannot be read: "_s + file.errorString();
    }
    if (file.size() > LargestFile) {
        return "is too large for a colour scheme"_s;
    }
    content = file.readAll();
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    if (content.startsWith(byteOrderMark)) {
        content.remove(0, byteOrderMark.size());
    }
    return {};
}

/// Reads \a content by a reader of its kind.
template <typename Content, typename Reader>
SchemeProblem readAs(Reader read, const QByteArray &content, ColorScheme &scheme)
{
    Content colors;
    SchemeProblem problem = read(content, colors);
    if (problem.text.isEmpty()) {
        scheme = colorScheme(colors);
    }
    return problem;
}

SchemeProblem readScheme(const QByteArray &content, ColorScheme &scheme)
{
    if (isKdeColors(content)) {
        return readAs<KdeColors>(readKdeColors, content, scheme);
    }
    if (isBase16(content)) {
        return readAs<Base16>(readBase16, content, scheme);
    }
    return {0, 0, "neither a KDE colour scheme nor a base16 or base24 scheme"_s};
}

QString located(const QString &path, const SchemeProblem &problem)
{
    QString place = path;
    for (const int number : {problem.line, problem.column}) {
        if (number > 0) {
            place += u':' + QString::number(number);
        }
    }
    return place + ": "_s + problem.text;
}

/// Tells whether a folder can have \a codePoint in its name on any system to which it is copied.
bool fitsFolderName(uint codePoint)
{
    static const QString unfit = R"(/\:*?"<>|)"_s;
    const QChar::Category category = QChar::category(codePoint);
    const bool isUnseen = category >= QChar::Other_Control && category <= QChar::Other_NotAssigned;
    return !isUnseen && (codePoint > 0x7F || !unfit.contains(QChar(codePoint)));
}

/// Returns \a name as a folder can be called; empty when nothing is left of it.
QString folderName(const QString &name)
{
    QVector<uint> codePoints = name.toUcs4();
    for (uint &codePoint : codePoints) {
        if (!fitsFolderName(codePoint)) {
            codePoint = ' ';
        }
    }
    codePoints = codePoints.mid(0, LongestName);
    // Hidden folders are no themes.
    static const QRegularExpression ends(R"(^[\s.]+|[\s.]+$)"_s);
    return QString::fromUcs4(codePoints.constData(), codePoints.size()).simplified().remove(ends);
}

/// Returns the first of \a names of which a theme's name can be made.
QString firstUsableName(const QStringList &names)
{
    for (const QString &name : names) {
        QString result = folderName(name);
        if (!result.isEmpty()) {
            return result;
        }
    }
    return "Imported"_s;
}

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
    QByteArray content;
    const QString unreadable = readFile(options.file, content);
    if (!unreadable.isEmpty()) {
        return fail(options.file + ": "_s + unreadable);
    }
    ColorScheme scheme;
    const SchemeProblem problem = readScheme(content, scheme);
    if (!problem.text.isEmpty()) {
        return fail(located(options.file, problem));
    }

    const QString name =
        firstUsableName({options.name, scheme.name, QFileInfo(options.file).completeBaseName()});
    const Tokens tokens = tokensFrom(scheme, name);
    const int exitCode = createTheme(tokens, options.out, options.force);
    if (exitCode == Fine) {
        printOrigin(scheme, tokens);
    }
    return exitCode;
}

} // namespace TARN::ThemeTool
