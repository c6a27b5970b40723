#include <QtCore/QTemporaryDir>
#include <QtGui/QImageReader>
#include <QtTest/QtTest>

#include <support/Text.h>
#include <support/pictures/PictureSheet.h>

namespace {

QImage plainPicture(QRgb color, const QSize &size = QSize(8, 6))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

PictureSheet sheetOf(const QImage &one, const QImage &other)
{
    PictureSheet sheet;
    sheet.add(text("First: at rest"), one);
    sheet.endRow();
    sheet.add(text("Second: hover"), other);
    return sheet;
}

} // namespace

/// The sheets on which reference pictures are kept.
class PictureSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sheetsAreKept();
    void fewColorsAreIndexed();
    void manyColorsAreNotLost();
    void differingPicturesAreNamed();
    void roundingIsNoDifference();
    void newAndGonePicturesAreNamed();
    void differencesAreMarked();
    void missingFileIsAnEmptySheet();

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(text("sheet.png"));
};

void PictureSheetTest::sheetsAreKept()
{
    const PictureSheet sheet = sheetOf(plainPicture(0xff112233), plainPicture(0xff445566));
    QVERIFY(sheet.save(m_path));
    const PictureSheet loaded = PictureSheet::load(m_path);
    QVERIFY(!loaded.isEmpty());
    QCOMPARE(sheet.differences(loaded), QStringList());
    QCOMPARE(loaded.differences(sheet), QStringList());
}

void PictureSheetTest::fewColorsAreIndexed()
{
    QVERIFY(sheetOf(plainPicture(0xff112233), plainPicture(0xff445566)).save(m_path));
    QCOMPARE(QImageReader(m_path).imageFormat(), QImage::Format_Indexed8);
}

void PictureSheetTest::manyColorsAreNotLost()
{
    QImage colorful = plainPicture(0xff000000, QSize(30, 30));
    for (int i = 0; i < 30 * 30; ++i) {
        colorful.setPixel(i % 30, i / 30, qRgb(i % 30 * 8, i / 30 * 8, 99));
    }
    const PictureSheet sheet = sheetOf(colorful, plainPicture(0xff445566));
    QVERIFY(sheet.save(m_path));
    QCOMPARE(sheet.differences(PictureSheet::load(m_path)), QStringList());
}

void PictureSheetTest::differingPicturesAreNamed()
{
    const PictureSheet expected = sheetOf(plainPicture(0xff112233), plainPicture(0xff445566));
    QImage changed = plainPicture(0xff445566);
    changed.setPixel(3, 2, 0xff445569);
    changed.setPixel(5, 2, 0xff005566);
    const PictureSheet actual = sheetOf(plainPicture(0xff112233), changed);
    QCOMPARE(actual.differences(expected),
             QStringList(text("Second: hover differs in 2 pixels within 3x1 at 3,2")));
    const PictureSheet larger =
        sheetOf(plainPicture(0xff112233), plainPicture(0xff445566, QSize(9, 6)));
    QCOMPARE(larger.differences(expected),
             QStringList(text("Second: hover is 9x6 pixels large instead of 8x6")));
}

void PictureSheetTest::roundingIsNoDifference()
{
    const PictureSheet expected = sheetOf(plainPicture(0xff112233), plainPicture(0xff445566));
    const PictureSheet actual = sheetOf(plainPicture(0xff132031), plainPicture(0xff445566));
    QCOMPARE(actual.differences(expected), QStringList());
}

void PictureSheetTest::newAndGonePicturesAreNamed()
{
    const PictureSheet both = sheetOf(plainPicture(0xff112233), plainPicture(0xff445566));
    PictureSheet one;
    one.add(text("First: at rest"), plainPicture(0xff112233));
    QCOMPARE(both.differences(one), QStringList(text("Second: hover is new")));
    QCOMPARE(one.differences(both), QStringList(text("Second: hover is gone")));
}

void PictureSheetTest::differencesAreMarked()
{
    const PictureSheet expected = sheetOf(plainPicture(0xff112233), plainPicture(0xff445566));
    QImage changed = plainPicture(0xff445566);
    changed.setPixel(3, 2, 0xff005566);
    const PictureSheet actual = sheetOf(plainPicture(0xff112233), changed);
    QVERIFY(actual.markedDifferences(expected).save(m_path));
    const QImage image = QImage(m_path).convertToFormat(QImage::Format_RGB32);
    int marked = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            marked += image.pixel(x, y) == 0xffff0000 ? 1 : 0;
        }
    }
    QCOMPARE(marked, 1);
    QCOMPARE(image.pixel(3, 6 + 2), 0xffff0000);
}

void PictureSheetTest::missingFileIsAnEmptySheet()
{
    QVERIFY(PictureSheet::load(m_folder.filePath(text("missing.png"))).isEmpty());
}

QTEST_MAIN(PictureSheetTest)
#include "PictureSheetTest.moc"
