#include <readers/QPaletteReader.h>
#include <readers/ThemeConfigurationReader.h>

#include <QtCore/QRandomGenerator>
#include <QtCore/QSet>
#include <QtTest/QtTest>

#include <check/model/RuleTable.h>
#include <mox-theme/support/SoundTheme.h>
#include <support/MessageRecorder.h>

using namespace TARN;
using namespace TARN::ThemeTool;

namespace {

constexpr int themeCount = 4000;

/// Writes small theme files of which about half are damaged.
class DamagedFiles
{
public:
    explicit DamagedFiles(quint32 seed)
        : m_random(seed)
    {
    }

    QByteArray configuration()
    {
        const QByteArray palette = element("Palette", element("ColorsList", entries("Color", 4)) +
                                                          element("BrushesList", brushes()));
        return damaged(element(
            pick({"Config"}, {"config"}),
            element("Factors", entries("Factor", 2)) + palette +
                element("Font", element("Family", "Sans") + element("Weight", value()) + sizes()) +
                element("Opacities", entries("Opacity", 2)) + element("CornerRadius", sizes())));
    }

    QByteArray palette()
    {
        QByteArray roles;
        for (int i = m_random.bounded(3); i > 0; --i) {
            QByteArray groups;
            for (int j = m_random.bounded(3); j > 0; --j) {
                groups += "<ColorGroup group=\"" +
                          pick({"All", "Active", "Normal"}, {"", "all", "NColorGroups"}) + "\">" +
                          pick({"red", "@Red", "@DisabledRed", "@Brush"},
                               {"", "@", "@red", "@Disabled", "Red ", "@DisabledDisabledRed"}) +
                          "</ColorGroup>";
            }
            roles += "<ColorRole role=\"" +
                     pick({"Base", "Highlight"}, {"", "base", "NColorRoles", "QPalette::Base"}) +
                     "\">" + groups + "</ColorRole>";
        }
        return damaged(element(pick({"QPalette"}, {"Palette"}), roles));
    }

private:
    bool rarely() { return m_random.bounded(60) == 0; }

    /// Returns one of \a usual, rarely one of \a unusual.
    QByteArray pick(const QVector<QByteArray> &usual, const QVector<QByteArray> &unusual)
    {
        const QVector<QByteArray> &words = rarely() ? unusual : usual;
        return words.at(m_random.bounded(words.size()));
    }

    QByteArray element(const QByteArray &tag, const QByteArray &content)
    {
        const QByteArray written = rarely() ? pick({tag.toLower()}, {"Other"}) : tag;
        const QByteArray text = "<" + written + ">" + content + "</" + written + ">\n";
        return rarely() ? QByteArray() : rarely() ? text + text : text;
    }

    QByteArray value()
    {
        return pick({"1", "0", "red", "#123"}, {"", "1.5", " 1", "x", "Red", "#12345", "nan"});
    }

    QByteArray color()
    {
        return pick({"red", "#123456", "transparent"}, {"", "rot", " #123", "#1"});
    }

    QByteArray name()
    {
        const int number = m_random.bounded(40);
        return pick({"N" + QByteArray::number(number), "Red"},
                    {"", "Disabled", "DisabledRed", "DisabledDisabledRed", "N1Disabled"});
    }

    QByteArray entries(const QByteArray &tag, int most)
    {
        QByteArray text = tag == "Color" ? "<Color name=\"Red\">red</Color>" : "";
        for (int i = m_random.bounded(most); i > 0; --i) {
            const QByteArray written = pick({tag}, {"Other", "Colour"});
            text += "<" + written +
                    pick({" name=\"N" + QByteArray::number(i) + "\""},
                         {" name=\"" + name() + "\"", "", " Name=\"x\""}) +
                    pick({"", " internal=\"true\""}, {" internal=\"1\""}) + ">" +
                    (tag == "Color" ? color() : value()) + "</" + written + ">\n";
        }
        return text;
    }

    QByteArray stop()
    {
        return "<GradientStop offset=\"" + pick({"0", "1", "0.5"}, {"", "x", "2", "-1", " 0 "}) +
               "\">" + pick({"Red", "DisabledRed"}, {"red", "", "N1"}) + "</GradientStop>";
    }

    QByteArray brushes()
    {
        QByteArray text;
        for (int i = m_random.bounded(4); i > 0; --i) {
            const QByteArray start =
                " name=\"" + pick({"Brush" + QByteArray::number(i), "Brush"}, {name()}) + "\"";
            const QByteArray kind = pick({"SolidBrush"}, {"RadialGradientBrush"});
            text += m_random.bounded(3) > 0
                        ? "<" + kind + start + ">" +
                              pick({"Red", "DisabledRed"}, {"N1", "", "Red "}) + "</" + kind + ">"
                        : "<LinearGradientBrush" + start + " startPoint=\"" +
                              pick({"0,0", ".5,1"}, {"0;0", "0,0,1", "", "a,b", "1e1, 2"}) +
                              "\" endPoint=\"0,1\">" + (rarely() ? "" : stop() + stop()) +
                              "</LinearGradientBrush>";
        }
        return text;
    }

    QByteArray sizes()
    {
        QByteArray text;
        for (const char *tag : {"SmallSize", "BaseSize", "MediumSize", "LargeSize"}) {
            text += element(tag, pick({"8", "12"}, {"0", "-1", "", "8pt", "8.5", " 9 "}));
        }
        return text;
    }

    /// Returns \a text, rarely with a character replaced or its end cut off.
    QByteArray damaged(QByteArray text)
    {
        if (rarely() && !text.isEmpty()) {
            text[m_random.bounded(text.size())] = "<>&\"/ x"[m_random.bounded(7)];
        }
        return rarely() ? text.left(m_random.bounded(text.size() + 1)) : text;
    }

    QRandomGenerator m_random;
};

/// Tells whether \a findings hold an error of the rules on what makes the readers stop.
bool hasStructuralError(const QVector<Finding> &findings)
{
    static const QSet<QString> rules{
        QStringLiteral("not-well-formed"),    QStringLiteral("missing-file"),
        QStringLiteral("faulty-entry"),       QStringLiteral("duplicate-entry"),
        QStringLiteral("unknown-brush-kind"), QStringLiteral("unknown-color"),
        QStringLiteral("unknown-role"),       QStringLiteral("unknown-group"),
        QStringLiteral("invalid-font")};
    return std::any_of(findings.begin(), findings.end(), [](const Finding &finding) {
        const bool isReaders = finding.file.endsWith(QLatin1String("config.xml")) ||
                               finding.file.endsWith(QLatin1String("qpaletteMapping.xml"));
        return isReaders && rules.contains(finding.rule) && finding.severity == Severity::Error;
    });
}

} // namespace

/// The checker and the library's readers agree on what is a fault.
class CheckAgreementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsErrorsWhereTheReadersDo()
    {
        const MessageRecorder unread;
        SoundTheme theme;
        DamagedFiles files(4711);
        CheckSettings settings;
        for (const char *rule :
             {"missing-variable", "unused-entry", "low-contrast", "unreadable-image"}) {
            settings.rules.insert(QString::fromLatin1(rule), Severity::Off);
        }
        int faultyCount = 0;
        for (int i = 0; i < themeCount; ++i) {
            const QByteArray configuration = files.configuration();
            const QByteArray palette = files.palette();
            theme.write(QStringLiteral("config.xml"), configuration);
            theme.write(QStringLiteral("qpaletteMapping.xml"), palette);
            const ThemeConfigurationReader reader(theme.path(QStringLiteral("config.xml")));
            const QPaletteReader paletteReader(theme.path(QStringLiteral("qpaletteMapping.xml")),
                                               reader.getBrushesMap(), reader.getColorsMap(), {});
            const bool isFaulty = reader.getStatus() != 0 || paletteReader.getStatus() != 0;
            const QVector<Finding> findings = theme.check(settings);
            const QByteArray message = configuration + "\n" + palette + "\n" +
                                       places(findings).join(QLatin1Char('\n')).toUtf8();
            QVERIFY2(hasStructuralError(findings) == isFaulty, message.constData());
            faultyCount += isFaulty ? 1 : 0;
        }
        // Both must be common for the agreement to mean something.
        QVERIFY2(faultyCount > themeCount / 5 && faultyCount < themeCount * 4 / 5,
                 qPrintable(QString::number(faultyCount)));
    }
};

QTEST_MAIN(CheckAgreementTest)
#include "CheckAgreementTest.moc"
