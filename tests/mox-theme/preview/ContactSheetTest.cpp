#include <theme/BaseTheme.h>

#include <QtCore/QSet>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <pages/PageTable.h>
#include <preview/ContactSheet.h>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::Gallery::pages;
using TARN::ThemeTool::ContactSheet;

namespace {

constexpr QRgb WindowColor = qRgb(0x12, 0x57, 0x9b);
constexpr QRgb TextColor = qRgb(0xfe, 0xdc, 0xb1);

int colorCount(const QImage &image, const QRect &area)
{
    QSet<QRgb> colors;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors.size();
}

// The share of an area that has the colour.
double shareOf(QRgb color, const QImage &image, const QRect &area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += image.pixel(x, y) == color ? 1 : 0;
        }
    }
    return double(count) / (area.width() * area.height());
}

// The titles are as high above their pages.
QRect titleArea(const QRect &page)
{
    return {page.left(), page.top() - 30, page.width(), 30};
}

} // namespace

/// The picture of all pages.
class ContactSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPageIsThere();
    void pagesKeepApart();
    void pagesAreTitled();
    void groundIsTheThemes();

private:
    ThemeRepository m_repository;
    std::unique_ptr<TARN::BaseTheme> m_theme;
    std::unique_ptr<ContactSheet> m_sheet;
};

void ContactSheetTest::initTestCase()
{
    m_theme = std::make_unique<TARN::BaseTheme>(
        m_repository.addTheme(text("Probe"), {},
                              paletteRole("Window", "#12579b") + paletteRole("Base", "#12579b") +
                                  paletteRole("WindowText", "#fedcb1")));
    // The theme leaves placeholders in the stylesheet, which the toolkit tells.
    const MessageRecorder warnings;
    m_theme->customize(qApp);
    m_sheet = std::make_unique<ContactSheet>(m_theme->getName());
}

void ContactSheetTest::everyPageIsThere()
{
    const QImage image = m_sheet->image();
    for (int i = 0; i < pages().size(); ++i) {
        const QRect area = m_sheet->pageArea(i);
        QVERIFY2(image.rect().contains(area), pages().at(i).id.latin1());
        QVERIFY2(colorCount(image, area) > 8, pages().at(i).id.latin1());
    }
}

void ContactSheetTest::pagesKeepApart()
{
    for (int i = 0; i < pages().size(); ++i) {
        for (int other = 0; other < i; ++other) {
            QVERIFY(!m_sheet->pageArea(i).intersects(m_sheet->pageArea(other)));
        }
    }
}

void ContactSheetTest::pagesAreTitled()
{
    for (int i = 0; i < pages().size(); ++i) {
        const double share = shareOf(TextColor, m_sheet->image(), titleArea(m_sheet->pageArea(i)));
        QVERIFY2(share > 0, pages().at(i).id.latin1());
    }
}

void ContactSheetTest::groundIsTheThemes()
{
    const QImage image = m_sheet->image();
    const QSize size = image.size();
    for (const QPoint corner :
         {QPoint(0, 0), QPoint(size.width() - 1, 0), QPoint(0, size.height() - 1),
          QPoint(size.width() - 1, size.height() - 1)}) {
        QCOMPARE(image.pixel(corner), WindowColor);
    }
    for (int i = 0; i < pages().size(); ++i) {
        const QRect area = m_sheet->pageArea(i);
        QVERIFY2(shareOf(WindowColor, image, area) > 0.1, pages().at(i).id.latin1());
    }
}

QTEST_MAIN(ContactSheetTest)
#include "ContactSheetTest.moc"
