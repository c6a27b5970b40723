#include <theme/BaseTheme.h>

#include <QtCore/QHash>
#include <QtCore/QMetaEnum>
#include <QtCore/QSet>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <memory>
#include <pages/PageTable.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>
#include <support/themes/CatalogueNames.h>
#include <vector>

using namespace TARN::Gallery;

namespace {

constexpr QSize pageSize(1310, 790);

/// A theme in which each value has an opaque colour of its own. All of them have one green, which
/// mixing the colours of the other theme never gives.
class ColorfulTheme
{
public:
    ColorfulTheme(const ThemeRepository &repository, const QString &name, int green);

    void apply() const { TARN::BaseTheme(m_directory).customize(qApp); }

    /// Returns the name of the value of that colour; empty when there is none.
    QString nameOf(QRgb color) const { return m_names.value(color); }

private:
    QByteArray newColor(const QString &name);
    void addVariable(ThemeConfiguration &configuration, const QString &group, const QString &name);
    QByteArray paletteRoles();

    int m_green;
    QHash<QRgb, QString> m_names;
    QString m_directory;
};

ColorfulTheme::ColorfulTheme(const ThemeRepository &repository, const QString &name, int green)
    : m_green(green)
{
    ThemeConfiguration configuration;
    visitBrushesAndColors([&](const QString &group, const QString &variable) {
        addVariable(configuration, group, variable);
    });
    m_directory = repository.addTheme(name, configuration, paletteRoles());
}

QByteArray ColorfulTheme::newColor(const QString &name)
{
    // Odd steps, so that the colours of plain scales between primary colours are not among them.
    const int number = m_names.size();
    const QColor color(3 + number % 61 * 4, m_green, 5 + number / 61 * 4);

    m_names.insert(color.rgb(), name);
    return color.name().toLatin1();
}

void ColorfulTheme::addVariable(ThemeConfiguration &configuration, const QString &group,
                                const QString &name)
{
    const QByteArray variable = name.toLatin1();
    if (group == text("colors")) {
        configuration.colors += "<Color name=\"" + variable + "\">" + newColor(name) + "</Color>";
    } else if (group == text("brushes")) {
        configuration.colors += "<Color name=\"Of" + variable + "\">" + newColor(name) + "</Color>";
        configuration.brushes +=
            "<SolidBrush name=\"" + variable + "\">Of" + variable + "</SolidBrush>";
    }
}

QByteArray ColorfulTheme::paletteRoles()
{
    QByteArray roles;
    const QMetaEnum names = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role != QPalette::NoRole) {
            const QByteArray name = names.valueToKey(role);
            roles += paletteRole(name, newColor(text("palette ") + QString::fromLatin1(name)));
        }
    }
    return roles;
}

struct ShownPage
{
    const Page *page;
    std::unique_ptr<QWidget> widget;
};

std::vector<ShownPage> createPages()
{
    std::vector<ShownPage> shown;
    for (const Page &page : pages()) {
        std::unique_ptr<QWidget> widget(page.create());
        widget->setAttribute(Qt::WA_DontShowOnScreen);
        widget->resize(widget->sizeHint().expandedTo(pageSize));
        widget->show();
        shown.push_back({&page, std::move(widget)});
    }
    return shown;
}

/// Returns the names of those values of \a theme whose colours are on the page.
QStringList namesOn(const ShownPage &shown, const ColorfulTheme &theme)
{
    const QImage image = shown.widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const auto *pixels = reinterpret_cast<const QRgb *>(image.constBits());
    QSet<QRgb> colors;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        if (i == 0 || pixels[i] != pixels[i - 1]) {
            colors.insert(pixels[i] | 0xff000000);
        }
    }
    QStringList names;
    for (const QRgb color : qAsConst(colors)) {
        names.append(theme.nameOf(color));
    }
    names.removeAll(QString());
    names.sort();
    return names;
}

/// Returns what of \a theme is on the pages, with the pages' names.
QStringList traces(const std::vector<ShownPage> &shown, const ColorfulTheme &theme)
{
    QStringList lines;
    for (const ShownPage &page : shown) {
        const QStringList names = namesOn(page, theme);
        if (!names.isEmpty()) {
            lines.append(QString(page.page->id) + text(": ") + names.join(u' '));
        }
    }
    return lines;
}

} // namespace

/// After a clean switch of themes, nothing on any page is painted in the former theme's colours.
class CleanSwitchPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qApp->setProperty("appLiveThemeSwitch", true); }
    void shownPagesFollow();
    void newPagesFollow();

private:
    ThemeRepository m_repository;
    ColorfulTheme m_former{m_repository, text("Former"), 251};
    ColorfulTheme m_next{m_repository, text("Next"), 7};
};

void CleanSwitchPagesTest::shownPagesFollow()
{
    m_former.apply();
    const std::vector<ShownPage> shown = createPages();
    for (const ShownPage &page : shown) {
        QVERIFY2(!namesOn(page, m_former).isEmpty(), page.page->id.latin1());
    }
    QCOMPARE(traces(shown, m_next).join(u'\n'), QString());
    m_next.apply();
    QCoreApplication::processEvents();
    QCOMPARE(traces(shown, m_former).join(u'\n'), QString());
    for (const ShownPage &page : shown) {
        QVERIFY2(!namesOn(page, m_next).isEmpty(), page.page->id.latin1());
    }
}

void CleanSwitchPagesTest::newPagesFollow()
{
    m_former.apply();
    for (const ShownPage &page : createPages()) {
        QVERIFY2(!namesOn(page, m_former).isEmpty(), page.page->id.latin1());
    }
    m_next.apply();
    QCOMPARE(traces(createPages(), m_former).join(u'\n'), QString());
}

QTEST_MAIN(CleanSwitchPagesTest)
#include "CleanSwitchPagesTest.moc"
