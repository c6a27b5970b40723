#include "import/KdeColors.h"

#include "text/Literals.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

namespace TARN::ThemeTool {

namespace {

/// The colours that a group "Colors:..." gives.
const QSet<QString> &roleKeys()
{
    static const QSet<QString> keys{
        "BackgroundNormal"_s,   "BackgroundAlternate"_s, "ForegroundNormal"_s,
        "ForegroundInactive"_s, "ForegroundActive"_s,    "ForegroundLink"_s,
        "ForegroundVisited"_s,  "ForegroundNegative"_s,  "ForegroundNeutral"_s,
        "ForegroundPositive"_s, "DecorationFocus"_s,     "DecorationHover"_s};
    return keys;
}

bool isColorKey(const QString &group, const QString &key)
{
    if (group == "WM"_s) {
        return key == "activeBackground"_s;
    }
    return group.startsWith("Colors:"_s) && roleKeys().contains(key);
}

/// Returns the colour that \a value stands for: "r,g,b", "r,g,b,a", "#rrggbb", "#aarrggbb" or a
/// name. Invalid when it is none.
QColor colorFrom(const QString &value)
{
    if (!value.contains(u',')) {
        return QColor::isValidColor(value) ? QColor(value) : QColor();
    }
    const QStringList parts = value.split(u',');
    if (parts.size() != 3 && parts.size() != 4) {
        return {};
    }
    std::array<int, 4> channels{0, 0, 0, 255};
    for (int i = 0; i < parts.size(); ++i) {
        bool isNumber = false;
        const int channel = parts[i].trimmed().toInt(&isNumber);
        if (!isNumber || channel < 0 || channel > 255) {
            return {};
        }
        channels[static_cast<std::size_t>(i)] = channel;
    }
    return {channels[0], channels[1], channels[2], channels[3]};
}

/// Returns the group that \a line, "[Group]" or "[Group][Inner group]", opens; empty when it is
/// broken. Marks like "[$i]", which lock a group, belong to no name.
QString groupFrom(const QString &line)
{
    static const QRegularExpression whole(R"(^(\[[^\]]*\])+$)"_s);
    if (!whole.match(line).hasMatch()) {
        return {};
    }
    QStringList names = line.mid(1, line.size() - 2).split("]["_s);
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString &name) { return name.startsWith(u'$'); }),
                names.end());
    return names.join(u'/');
}

/// Returns \a key without marks like "[$e]"; what is left of a translated key still has brackets.
QString withoutMarks(const QString &key)
{
    static const QRegularExpression marks(R"(\[\$[^\]]*\]$)"_s);
    return key.trimmed().remove(marks).trimmed();
}

/// One line of the file, taken apart.
struct Entry
{
    QString group;
    QString key;
    QString value;
};

/// Adds \a entry to \a colors. Returns what is wrong with it; empty when nothing is.
QString take(const Entry &entry, KdeColors &colors)
{
    if (entry.group == "General"_s) {
        // The second is what the scheme is filed under, which is better than nothing.
        if (entry.key == "Name"_s || (entry.key == "ColorScheme"_s && colors.name.isEmpty())) {
            colors.name = entry.value;
        }
        return {};
    }
    if (entry.value.isEmpty() || !isColorKey(entry.group, entry.key)) {
        return {};
    }
    const QColor color = colorFrom(entry.value);
    if (!color.isValid()) {
        return R"(%1: "%2" is not a colour)"_s.arg(entry.key, entry.value);
    }
    colors.colors.insert(entry.group + u'/' + entry.key, color);
    return {};
}

struct Source
{
    QString variable;
    QStringList entries; ///< the first that is there counts
};

const QVector<Source> &sources()
{
    static const QVector<Source> table{
        {"BackgroundColor"_s,
         {"Colors:Window/BackgroundNormal"_s, "Colors:View/BackgroundNormal"_s,
          "Colors:Button/BackgroundNormal"_s, "WM/activeBackground"_s}},
        {"BackgroundSubLevel1Color"_s, {"Colors:Header/BackgroundNormal"_s}},
        {"BackgroundSubLevel2Color"_s, {"WM/activeBackground"_s}},
        {"InputBackgroundColor"_s, {"Colors:View/BackgroundNormal"_s}},
        {"ItemViewBackgroundColor"_s, {"Colors:View/BackgroundNormal"_s}},
        {"ItemViewAlternateBackgroundColor"_s, {"Colors:View/BackgroundAlternate"_s}},
        {"ButtonBackgroundColor"_s, {"Colors:Button/BackgroundNormal"_s}},
        {"ToolTipBackgroundColor"_s, {"Colors:Tooltip/BackgroundNormal"_s}},
        {"ForegroundColor"_s,
         {"Colors:Window/ForegroundNormal"_s, "Colors:View/ForegroundNormal"_s,
          "Colors:Button/ForegroundNormal"_s}},
        {"ForegroundSubLevel1Color"_s,
         {"Colors:Window/ForegroundInactive"_s, "Colors:View/ForegroundInactive"_s}},
        {"ForegroundLinkColor"_s,
         {"Colors:View/ForegroundLink"_s, "Colors:Window/ForegroundLink"_s}},
        {"ForegroundLinkVisitedColor"_s,
         {"Colors:View/ForegroundVisited"_s, "Colors:Window/ForegroundVisited"_s}},
        {"StatusDangerColor"_s,
         {"Colors:View/ForegroundNegative"_s, "Colors:Window/ForegroundNegative"_s}},
        {"StatusWarningColor"_s,
         {"Colors:View/ForegroundNeutral"_s, "Colors:Window/ForegroundNeutral"_s}},
        {"StatusSuccessColor"_s,
         {"Colors:View/ForegroundPositive"_s, "Colors:Window/ForegroundPositive"_s}}};
    return table;
}

/// Returns the first of \a entries that \a colors have; invalid when there is none.
QColor firstOf(const QStringList &entries, const KdeColors &colors)
{
    for (const QString &entry : entries) {
        const auto found = colors.colors.constFind(entry);
        if (found != colors.colors.cend()) {
            return *found;
        }
    }
    return {};
}

} // namespace

bool isKdeColors(const QByteArray &text)
{
    static const QRegularExpression group(R"(^\s*\[Colors:\w+\])"_s,
                                          QRegularExpression::MultilineOption);
    return group.match(QString::fromUtf8(text)).hasMatch();
}

SchemeProblem readKdeColors(const QByteArray &text, KdeColors &colors)
{
    // QSettings does not do here: it takes "[A][B]" for "[A]", a comment after "#" for an entry,
    // and knows no line numbers.
    const QStringList lines = QString::fromUtf8(text).split(u'\n');
    QString group;
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed();
        if (line.startsWith(u'#')) {
            continue;
        }
        if (line.startsWith(u'[')) {
            group = groupFrom(line);
            continue;
        }
        const int equals = line.indexOf(u'=');
        if (equals <= 0) {
            continue;
        }
        const Entry entry{group, withoutMarks(line.left(equals)), line.mid(equals + 1).trimmed()};
        const QString problem = take(entry, colors);
        if (!problem.isEmpty()) {
            return {i + 1, 0, problem};
        }
    }
    if (!firstOf(sources().first().entries, colors).isValid()) {
        return {0, 0, "no background colour is given"_s};
    }
    return {};
}

ColorScheme colorScheme(const KdeColors &colors)
{
    ColorScheme scheme;
    scheme.kind = "KDE colour scheme"_s;
    scheme.name = colors.name;
    for (const Source &source : sources()) {
        const QColor color = firstOf(source.entries, colors);
        if (color.isValid()) {
            scheme.colors.insert(source.variable, color);
        }
    }
    scheme.accent = firstOf({"Colors:Selection/BackgroundNormal"_s, "Colors:View/DecorationFocus"_s,
                             "Colors:Window/DecorationFocus"_s, "Colors:Button/DecorationFocus"_s,
                             "Colors:View/DecorationHover"_s, "Colors:Button/DecorationHover"_s,
                             "Colors:View/ForegroundLink"_s, "Colors:Window/ForegroundLink"_s},
                            colors);
    return scheme;
}

} // namespace TARN::ThemeTool
