#include "import/Base16.h"

#include "text/Literals.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <yaml-cpp/yaml.h>

namespace TARN::ThemeTool {

namespace {

/// How many of the colours every scheme has.
constexpr std::size_t RequiredCount = 16;

QString textOf(const YAML::Node &node)
{
    return node.IsScalar() ? QString::fromStdString(node.Scalar()).trimmed() : QString();
}

/// A name in a map, and what it stands for.
struct Entry
{
    YAML::Node key = YAML::Node(YAML::NodeType::Undefined);
    YAML::Node value = key;
};

/// Returns the entry \a key of \a map, whose keys are compared without regard to case: hex digits
/// are written in both. An undefined one when there is none.
Entry entryOf(const YAML::Node &map, const QString &key)
{
    for (const auto &entry : map) {
        if (textOf(entry.first).compare(key, Qt::CaseInsensitive) == 0) {
            return {entry.first, entry.second};
        }
    }
    return {};
}

YAML::Node valueOf(const YAML::Node &map, const QString &key)
{
    return entryOf(map, key).value;
}

/// "base0A" for 10.
QString keyOf(std::size_t index)
{
    const QString digits = "%1"_s.arg(static_cast<int>(index), 2, 16, QLatin1Char('0'));
    return "base"_s + digits.toUpper();
}

SchemeProblem problemAt(const YAML::Mark &mark, const QString &text)
{
    return {mark.line + 1, mark.column + 1, text};
}

/// Reads the colour of \a entry, which is called \a name.
SchemeProblem readColor(const Entry &entry, const QString &name, QColor &color)
{
    static const QRegularExpression sixDigits("^#?([0-9A-Fa-f]{6})$"_s);
    const QString text = textOf(entry.value);
    const QRegularExpressionMatch match = sixDigits.match(text);
    if (!match.hasMatch()) {
        // A value that is missing has the place of what comes next.
        const YAML::Node &place = text.isEmpty() ? entry.key : entry.value;
        return problemAt(place.Mark(),
                         R"(%1: "%2" is not a colour of six hexadecimal digits)"_s.arg(name, text));
    }
    color = QColor(u'#' + match.captured(1));
    return {};
}

SchemeProblem readColors(const YAML::Node &palette, Base16 &scheme)
{
    QStringList missing;
    for (std::size_t i = 0; i < scheme.colors.size(); ++i) {
        const QString name = keyOf(i);
        const Entry entry = entryOf(palette, name);
        if (entry.value.IsDefined()) {
            SchemeProblem problem = readColor(entry, name, scheme.colors[i]);
            if (!problem.text.isEmpty()) {
                return problem;
            }
        } else if (i < RequiredCount) {
            missing.append(name);
        }
    }
    if (!missing.isEmpty()) {
        return {0, 0, "missing: "_s + missing.join(", "_s)};
    }
    return {};
}

SchemeProblem readDocument(const YAML::Node &document, Base16 &scheme)
{
    if (!document.IsMap()) {
        return problemAt(document.Mark(), "not a list of names and values"_s);
    }
    // The older form calls the scheme's name "scheme".
    for (const QString &key : {"name"_s, "scheme"_s}) {
        const YAML::Node name = valueOf(document, key);
        if (scheme.name.isEmpty() && name.IsDefined()) {
            scheme.name = textOf(name);
        }
    }
    const YAML::Node author = valueOf(document, "author"_s);
    if (author.IsDefined()) {
        scheme.author = textOf(author);
    }
    const YAML::Node palette = valueOf(document, "palette"_s);
    return readColors(palette.IsDefined() ? palette : document, scheme);
}

} // namespace

bool isBase16(const QByteArray &text)
{
    static const QRegularExpression key(R"(^\s*["']?(base[01][0-9A-F]|palette)["']?\s*:)"_s,
                                        QRegularExpression::MultilineOption |
                                            QRegularExpression::CaseInsensitiveOption);
    return key.match(QString::fromUtf8(text)).hasMatch();
}

SchemeProblem readBase16(const QByteArray &text, Base16 &scheme)
{
    try {
        return readDocument(YAML::Load(text.toStdString()), scheme);
    } catch (const YAML::Exception &exception) {
        return problemAt(exception.mark, "not YAML: "_s + QString::fromStdString(exception.msg));
    }
}

ColorScheme colorScheme(const Base16 &scheme)
{
    struct Use
    {
        const char *variable;
        std::size_t color;
    };
    // Series alternate between warm and cold colours, so that neighbours differ.
    static const Use uses[] = {{"BackgroundColor", 0x00},
                               {"BackgroundUpLevel1Color", 0x01},
                               {"ButtonBackgroundColor", 0x02},
                               {"BackgroundSubLevel1Color", 0x10},
                               {"BackgroundSubLevel2Color", 0x11},
                               {"ForegroundColor", 0x05},
                               {"ForegroundSubLevel1Color", 0x04},
                               {"ForegroundDisabledColor", 0x03},
                               {"ForegroundLinkColor", 0x0D},
                               {"ForegroundLinkVisitedColor", 0x0E},
                               {"StatusDangerColor", 0x08},
                               {"StatusWarningColor", 0x0A},
                               {"StatusSuccessColor", 0x0B},
                               {"StatusInfoColor", 0x0C},
                               {"Series01Color", 0x0D},
                               {"Series02Color", 0x09},
                               {"Series03Color", 0x0B},
                               {"Series04Color", 0x0E},
                               {"Series05Color", 0x0A},
                               {"Series06Color", 0x0C},
                               {"Series07Color", 0x08},
                               {"Series08Color", 0x0F}};

    ColorScheme result;
    const bool isBase24 = scheme.colors.back().isValid();
    result.kind = isBase24 ? "base24 scheme"_s : "base16 scheme"_s;
    result.name = scheme.name;
    result.author = scheme.author;
    result.accent = scheme.colors[0x0D];
    for (const Use &use : uses) {
        if (scheme.colors[use.color].isValid()) {
            result.colors.insert(QLatin1String(use.variable), scheme.colors[use.color]);
        }
    }
    return result;
}

} // namespace TARN::ThemeTool
