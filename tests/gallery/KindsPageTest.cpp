#include <catalogue/Catalogue.h>
#include <resources/ThemeResources.h>
#include <theme/BaseTheme.h>

#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <memory>
#include <pages/Pages.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::ThemeResources;

namespace {

constexpr QSize PageSize(1310, 790);

/// Returns the brushes of the faces that a theme defines for kinds, disabled ones too.
QStringList faceBrushes()
{
    // What the names of the brushes of kinds are composed of.
    static const QRegularExpression face(
        text("^(?:Toggle)?(?:Button|Input).*(?:Unchecked|Checked|Default)(?:Hover|Pressed)?"
             "BackgroundBrush$"));
    QStringList names;
    for (const TARN::Variable &variable : TARN::Catalogue::variables()) {
        if (!face.match(variable.name).hasMatch()) {
            continue;
        }
        names.append(variable.name);
        // What is disabled is under no mouse.
        if (!variable.name.contains(text("Hover")) && !variable.name.contains(text("Pressed"))) {
            names.append(variable.name + text("Disabled"));
        }
    }
    names.sort();
    return names;
}

/// Returns brushes for all faces, each of a colour of its own. No theme of another \a seed has the
/// same.
ThemeConfiguration distinctFaces(int seed)
{
    ThemeConfiguration configuration;
    int color = seed;
    for (const QString &name : faceBrushes()) {
        const QByteArray brush = name.toLatin1();
        color += 1000;
        configuration.colors += "<Color name=\"Of" + brush + "\">#" +
                                QByteArray::number(color, 16).rightJustified(6, '0') + "</Color>";
        configuration.brushes += "<SolidBrush name=\"" + brush + "\">Of" + brush + "</SolidBrush>";
    }
    return configuration;
}

/// The theme has no more than faces, so that the stylesheet has placeholders left when it is
/// parsed.
void expectStyleSheetOfPlaceholders()
{
    QTest::ignoreMessage(QtWarningMsg, "Could not parse application stylesheet");
}

std::unique_ptr<QWidget> createPage()
{
    expectStyleSheetOfPlaceholders();
    std::unique_ptr<QWidget> page(TARN::Gallery::createKindsPage());
    page->ensurePolished();
    page->resize(PageSize);
    return page;
}

QList<QWidget *> samplesOf(const QWidget &page)
{
    return page.findChildren<QWidget *>(QRegularExpression(text("BackgroundBrush(?:Disabled)?$")));
}

/// Returns the samples of \a page whose face is not painted in the brush that they are called by.
QString wrongFaces(QWidget &page)
{
    const QImage image = page.grab().toImage();
    QStringList wrong;
    for (const QWidget *sample : samplesOf(page)) {
        // Inside the line, outside the text, and off the corners.
        const QPoint probe = sample->mapTo(&page, QPoint(4, sample->height() / 2));
        const QColor seen = image.pixelColor(probe * image.devicePixelRatio());
        const QBrush brush = ThemeResources::getBrush(sample->objectName());
        if (brush.style() != Qt::SolidPattern || seen != brush.color()) {
            wrong.append(sample->objectName());
        }
    }
    return wrong.join(u' ');
}

} // namespace

/// The page that shows the kinds of buttons and inputs.
class KindsPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyKindIsShownInEveryState();
    void facesArePaintedInTheirBrushes();
    void samplesFollowTheTheme();
    void samplesAreOfOneSize();

private:
    void applyTheme(int seed) const;

    ThemeRepository m_repository;
};

void KindsPageTest::initTestCase()
{
    qApp->setProperty("appLiveThemeSwitch", true);
    applyTheme(1);
}

void KindsPageTest::applyTheme(int seed) const
{
    const QString name = text("Theme%1").arg(seed);
    TARN::BaseTheme(m_repository.addTheme(name, distinctFaces(seed))).customize(qApp);
}

void KindsPageTest::everyKindIsShownInEveryState()
{
    const auto page = createPage();
    QStringList shown;
    for (const QWidget *sample : samplesOf(*page)) {
        shown.append(sample->objectName());
    }
    shown.sort();
    QVERIFY(!shown.isEmpty());
    QCOMPARE(shown, faceBrushes());
}

void KindsPageTest::facesArePaintedInTheirBrushes()
{
    const auto page = createPage();
    QCOMPARE(wrongFaces(*page), QString());
}

void KindsPageTest::samplesFollowTheTheme()
{
    const auto page = createPage();
    QCOMPARE(wrongFaces(*page), QString());
    const QString brush = faceBrushes().constFirst();
    const QBrush before = ThemeResources::getBrush(brush);
    expectStyleSheetOfPlaceholders();
    applyTheme(2);
    QVERIFY(ThemeResources::getBrush(brush) != before);
    QCOMPARE(wrongFaces(*page), QString());
}

void KindsPageTest::samplesAreOfOneSize()
{
    const auto page = createPage();
    page->grab();
    const QList<QWidget *> samples = samplesOf(*page);
    for (const QWidget *sample : samples) {
        // What is left over when the room is shared makes some a pixel larger.
        const QSize difference = sample->size() - samples.constFirst()->size();
        QVERIFY2(qAbs(difference.width()) <= 1 && qAbs(difference.height()) <= 1,
                 qPrintable(sample->objectName()));
    }
}

QTEST_MAIN(KindsPageTest)
#include "KindsPageTest.moc"
