#include <catalogue/Catalogue.h>
#include <catalogue/Words.h>

#include <QtTest/QtTest>

#include <color/Oklch.h>
#include <generator/recipes/ThemeDefinition.h>
#include <mox-theme/support/DefinedColors.h>
#include <mox-theme/support/SampleTokens.h>

using namespace TARN;
using namespace TARN::ThemeTool;

namespace {

// Two areas side by side are just told apart at a distance of 0.02. The thresholds are multiples of
// it.

// Surfaces lie next to each other, mostly with a line between them: calm, yet to be seen.
constexpr double surfaceStep = 0.02;
// Near black the light of the room hides ten times as much.
constexpr double stepFromBlack = 0.2;
// A face is compared with what it was a moment ago, or with that of a button further away.
constexpr double faceStep = 0.03;
// A line of one pixel and the strokes of letters cover too little to be compared like faces.
constexpr double lineStep = 0.1;
// An error must be seen without looking for it.
constexpr double errorStep = 0.15;
// Of the distance from its face, disabled text keeps so much at most.
constexpr double mostOfDisabledText = 0.8;

const QString disabledSuffix = QStringLiteral("Disabled");

struct Look
{
    QColor face;
    QColor line;
    QColor text;
};

/// The looks of what comes in kinds.
class Looks
{
public:
    explicit Looks(const Tokens &tokens)
        : m_colors(defineTheme(tokens))
    {
    }

    /// Returns the look whose brushes' names begin with \a stem and end with \a twin.
    [[nodiscard]] Look of(const QString &stem, const QString &twin = QString()) const
    {
        const auto brush = [&](QLatin1String field) {
            return stem + field + QStringLiteral("Brush") + twin;
        };
        const QColor face = m_colors.seen(brush(Words::background));
        return {face, m_colors.seen(brush(Words::border), face),
                m_colors.seen(brush(Words::foreground), face)};
    }

private:
    DefinedColors m_colors;
};

bool areToldApart(const Look &one, const Look &other)
{
    return colorDistance(one.face, other.face) >= faceStep ||
           colorDistance(one.line, other.line) >= lineStep ||
           colorDistance(one.text, other.text) >= lineStep;
}

QString distances(const Look &one, const Look &other)
{
    return QStringLiteral("face %1, line %2, text %3")
        .arg(colorDistance(one.face, other.face), 0, 'f', 3)
        .arg(colorDistance(one.line, other.line), 0, 'f', 3)
        .arg(colorDistance(one.text, other.text), 0, 'f', 3);
}

/// Collects what is not told apart.
class Comparison
{
public:
    explicit Comparison(const Tokens &tokens)
        : m_looks(tokens)
    {
    }

    void compare(const QString &one, const QString &other, const QString &twin = QString())
    {
        const Look first = m_looks.of(one, twin);
        const Look second = m_looks.of(other, twin);
        if (!areToldApart(first, second)) {
            m_alike += QStringLiteral("%1 and %2: %3")
                           .arg(one + twin, other + twin, distances(first, second));
        }
    }

    /// Compares at rest, under the mouse and pressed.
    void compareInteractions(const QString &stem)
    {
        compare(stem, stem + Words::hover);
        compare(stem, stem + Words::pressed);
        compare(stem + Words::hover, stem + Words::pressed);
    }

    /// Compares with the same when it is disabled, which is to be fainter.
    void compareDisabled(const QString &stem)
    {
        const Look enabled = m_looks.of(stem);
        const Look disabled = m_looks.of(stem, disabledSuffix);
        const double contrast = colorDistance(enabled.face, enabled.text);
        const double left = colorDistance(disabled.face, disabled.text);
        if (left > mostOfDisabledText * contrast) {
            m_alike += QStringLiteral("%1 keeps %2 of its text while it is disabled")
                           .arg(stem)
                           .arg(left / contrast, 0, 'f', 2);
        }
    }

    [[nodiscard]] QString alike() const { return m_alike.join(QStringLiteral("; ")); }

private:
    Looks m_looks;
    QStringList m_alike;
};

/// Returns what is wrong with the steps between \a names, from the darkest to the lightest.
QString unclearSteps(const DefinedColors &colors, const QStringList &names, double step)
{
    QStringList unclear;
    for (int i = 1; i < names.size(); ++i) {
        const QColor below = colors.seen(names.at(i - 1));
        const QColor above = colors.seen(names.at(i));
        const bool isInOrder = toOklch(above).lightness > toOklch(below).lightness;
        if (!isInOrder || colorDistance(below, above) < step) {
            unclear += QStringLiteral("%1 to %2: %3")
                           .arg(names.at(i - 1), names.at(i))
                           .arg(colorDistance(below, above), 0, 'f', 3);
        }
    }
    return unclear.join(QStringLiteral("; "));
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

bool isStatus(const QString &kind)
{
    return words("Success Warning Danger Info").contains(kind);
}

} // namespace

/// What a user has to tell apart looks different, in the shipped themes and in generated ones.
class ThemeDesignTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonStatesDiffer_data() { addManyRows(); }
    void buttonStatesDiffer();
    void toggleStatesDiffer_data() { addManyRows(); }
    void toggleStatesDiffer();
    void inputStatesDiffer_data() { addManyRows(); }
    void inputStatesDiffer();
    void kindsDiffer_data() { addShippedRows(); }
    void kindsDiffer();
    void surfacesAreSteps_data() { addManyRows(); }
    void surfacesAreSteps();
    void errorsStandOut_data() { addShippedRows(); }
    void errorsStandOut();
};

void ThemeDesignTest::buttonStatesDiffer()
{
    QFETCH(const Tokens, tokens);
    Comparison comparison(tokens);
    for (const QString &kind : Catalogue::kinds()) {
        const QString stem = Words::button + kind;
        for (const QLatin1String checkState : Words::checkStates) {
            comparison.compareInteractions(stem + checkState);
        }
        comparison.compare(stem + Words::unchecked, stem + Words::checked);
        comparison.compareDisabled(stem + Words::unchecked);
        // A primary button is its dialog's main one whether or not Return presses it.
        if (kind != QStringLiteral("Primary")) {
            comparison.compare(stem + Words::unchecked, stem + Words::isDefault);
        }
    }
    QVERIFY2(comparison.alike().isEmpty(), qPrintable(comparison.alike()));
}

void ThemeDesignTest::toggleStatesDiffer()
{
    QFETCH(const Tokens, tokens);
    Comparison comparison(tokens);
    for (const QString &kind : Catalogue::kinds()) {
        const QString stem = Words::toggle + Words::button + kind;
        for (const QLatin1String checkState : Words::checkStates) {
            comparison.compareInteractions(stem + checkState);
        }
        comparison.compare(stem + Words::unchecked, stem + Words::checked);
        comparison.compare(stem + Words::unchecked, stem + Words::checked, disabledSuffix);
        comparison.compareDisabled(stem + Words::unchecked);
        comparison.compareDisabled(stem + Words::checked);
    }
    QVERIFY2(comparison.alike().isEmpty(), qPrintable(comparison.alike()));
}

void ThemeDesignTest::inputStatesDiffer()
{
    QFETCH(const Tokens, tokens);
    Comparison comparison(tokens);
    for (const QString &kind : Catalogue::kinds()) {
        const QString closed = Words::input + kind + Words::unchecked;
        comparison.compare(closed, closed + Words::hover);
        // Used, an input has a line in the accent, which an author may choose like a status.
        if (!isStatus(kind)) {
            comparison.compare(closed, closed + Words::pressed);
            comparison.compare(closed, Words::input + kind + Words::checked);
        }
        comparison.compareDisabled(closed);
    }
    QVERIFY2(comparison.alike().isEmpty(), qPrintable(comparison.alike()));
}

/// Kinds that stand side by side in one dialog.
void ThemeDesignTest::kindsDiffer()
{
    QFETCH(const Tokens, tokens);
    Comparison comparison(tokens);
    const QStringList kinds = Catalogue::kinds();
    for (int i = 0; i < kinds.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            comparison.compare(Words::button + kinds.at(j) + Words::unchecked,
                               Words::button + kinds.at(i) + Words::unchecked);
        }
    }
    QVERIFY2(comparison.alike().isEmpty(), qPrintable(comparison.alike()));
}

void ThemeDesignTest::surfacesAreSteps()
{
    QFETCH(const Tokens, tokens);
    const DefinedColors colors(defineTheme(tokens));
    if (tokens.base == Base::HighContrast) {
        // Nothing lies below black; what is not raised has a frame instead.
        for (const QString &raised :
             words("BackgroundSubLevel1Color ExpanderHeaderColor BackgroundUpLevel1Color "
                   "ItemViewAlternateBackgroundColor TabBackgroundActiveColor "
                   "TabBorderMouseOverColor GrooveBackgroundColor")) {
            QCOMPARE(
                unclearSteps(colors, {QStringLiteral("BackgroundColor"), raised}, stepFromBlack),
                QString());
        }
        return;
    }
    QCOMPARE(unclearSteps(colors,
                          words("BackgroundSubLevel2Color BackgroundSubLevel1Color BackgroundColor "
                                "BackgroundUpLevel1Color"),
                          surfaceStep),
             QString());
    QCOMPARE(
        unclearSteps(colors,
                     words("TabBackgroundColor TabBorderMouseOverColor TabBackgroundActiveColor"),
                     surfaceStep),
        QString());
    const std::pair<const char *, const char *> neighbours[] = {
        {"BackgroundColor", "InputBackgroundColor"},
        {"BackgroundColor", "ItemViewBackgroundColor"},
        {"BackgroundColor", "GrooveBackgroundColor"},
        {"BackgroundColor", "ExpanderHeaderColor"},
        {"ItemViewBackgroundColor", "ItemViewAlternateBackgroundColor"},
        {"BackgroundUpLevel1Color", "BackgroundUpLevel2Color"}};
    for (const auto &[one, other] : neighbours) {
        const double distance = colorDistance(colors.seen(QString::fromLatin1(one)),
                                              colors.seen(QString::fromLatin1(other)));
        QVERIFY2(distance >= surfaceStep, other);
    }
}

/// An author's accent may be red, which no theme can help; those of the shipped themes are not.
void ThemeDesignTest::errorsStandOut()
{
    QFETCH(const Tokens, tokens);
    const DefinedColors colors(defineTheme(tokens));
    for (const QString &outline : words("InputBorderBrush InputBorderHoverColor "
                                        "InputBorderActiveBrush MainBrush ControlBorderBrush")) {
        const double distance =
            colorDistance(colors.seen(QStringLiteral("StatusDangerColor")), colors.seen(outline));
        QVERIFY2(distance >= errorStep, qPrintable(outline));
    }
}

QTEST_GUILESS_MAIN(ThemeDesignTest)
#include "ThemeDesignTest.moc"
