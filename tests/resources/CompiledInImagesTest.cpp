#include "ImageFiles.h"

#include <resources/ThemeResources.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>

#include <memory>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::BaseTheme;
using TARN::ThemeResources;

namespace {

constexpr int iconCount = 710;

const QRegularExpression anything(QStringLiteral("."));

const char *const families[] = {"action",   "viewer", "status", "view",     "tool",    "arrow",
                                "treeview", "clip",   "align",  "geometry", "chevron", "message",
                                "measure",  "filter", "grid",   "file",     "symbols", "mimetype",
                                "plot",     "chart",  "system", "product"};

const char *const cursorNames[] = {"_blank",
                                   "action.add",
                                   "action.add.stamp",
                                   "action.delete",
                                   "action.rotate.clockwise",
                                   "hand.grab",
                                   "hand.pan",
                                   "pick.circle",
                                   "pick.contrast",
                                   "pick.lasso",
                                   "pick.lasso.minus",
                                   "pick.lasso.plus",
                                   "pick.mangicwand",
                                   "pick.neighborhood",
                                   "pick.plus",
                                   "select.grid",
                                   "select.image",
                                   "select.rectangle",
                                   "tool.blow",
                                   "tool.brush",
                                   "tool.camera",
                                   "tool.eraser",
                                   "tool.magnify",
                                   "tool.pen",
                                   "viewer.interact",
                                   "viewer.navigate",
                                   "viewer.pan",
                                   "viewer.zoom.z"};

QImage pixels(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

bool isEmpty(const QImage &image)
{
    QImage nothing(image.size(), image.format());
    nothing.fill(Qt::transparent);
    return image == nothing;
}

} // namespace

/// The images that the library brings along, under an applied theme.
class CompiledInImagesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ThemeRepository> m_files;

    void applyTheme() const { BaseTheme(m_files->addTheme(text("Test"))).customize(qApp); }

private Q_SLOTS:
    void init()
    {
        m_files = std::make_unique<ThemeRepository>();
        QDir::setSearchPaths(text("icons"), {});
        QDir::setSearchPaths(text("cursors"), {});
    }

    void anIconIsTheCompiledInOne()
    {
        applyTheme();
        const QImage icon = pixels(ThemeResources::getIcon(text("action.copy")).pixmap(24));
        QCOMPARE(icon.size(), QSize(24, 24));
        QVERIFY(!isEmpty(icon));
        QCOMPARE(icon, pixels(QIcon(text(":/Icons/action.copy.svg")).pixmap(24)));
        QCOMPARE(pixels(ThemeResources::getIcon(text("action.copy.svg")).pixmap(24)), icon);
    }

    void theThemesIconGoesBefore()
    {
        m_files->write(text("Test/Images/Test/scalable/action.copy.svg"), svgFile("red"));
        applyTheme();
        const QImage icon = pixels(ThemeResources::getIcon(text("action.copy")).pixmap(24));
        QCOMPARE(icon.pixelColor(12, 12), QColor(Qt::red));
        QCOMPARE(icon.pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(!ThemeResources::getIcon(text("action.paste")).isNull());
    }

    void pixmapsAreRenderedAtTheirSize()
    {
        applyTheme();
        const QPixmap pen = ThemeResources::getPixmap(text("tool.pen"), QSize(48, 48));
        QCOMPARE(pen.size(), QSize(48, 48));
        QVERIFY(!isEmpty(pixels(pen)));
        const QPixmap small = ThemeResources::getPixmap(text("tool.pen"), QSize(16, 16));
        QCOMPARE(small.size(), QSize(16, 16));
        for (const auto mode : {Qt::FastTransformation, Qt::SmoothTransformation}) {
            QVERIFY(pixels(pen) != pixels(small.scaled(48, 48, Qt::IgnoreAspectRatio, mode)));
        }
    }

    void everyIconIsListedOnce()
    {
        m_files->write(text("Test/Images/Test/scalable/action.copy.svg"), svgFile("red"));
        m_files->write(text("Test/Images/Test/scalable/action.copy.MainBrush.svg"), svgFile("red"));
        m_files->write(text("Test/Images/Test/scalable/own.thing.svg"), svgFile("red"));
        applyTheme();
        const QStringList names = ThemeResources::getIcons(anything);
        QCOMPARE(names.size(), iconCount + 1);
        QCOMPARE(names.count(text("action.copy")), 1);
        QVERIFY(names.indexOf(text("own.thing")) < 2);
        QVERIFY(names.indexOf(text("action.copy")) < 2);
        QVERIFY(names.filter(text("Brush")).isEmpty());
    }

    void iconNamesAreWordsOfAFamily()
    {
        applyTheme();
        const QStringList names = ThemeResources::getIcons(anything);
        QCOMPARE(names.size(), iconCount);
        const QRegularExpression words(text("^[a-z0-9_-]+(\\.[a-z0-9_-]+)+$"));
        for (const QString &name : names) {
            QVERIFY2(words.match(name).hasMatch(), qPrintable(name));
        }
        for (const char *family : families) {
            const QRegularExpression ofFamily(text("^") + text(family) + text("\\."));
            QVERIFY2(!ThemeResources::getIcons(ofFamily).isEmpty(), family);
        }
    }

    void everyIconCanBeRendered()
    {
        applyTheme();
        MessageRecorder messages;
        const QStringList names = ThemeResources::getIcons(anything);
        QCOMPARE(names.size(), iconCount);
        for (const QString &name : names) {
            QVERIFY2(!isEmpty(pixels(ThemeResources::getPixmap(name, QSize(16, 16)))),
                     qPrintable(name));
        }
        QCOMPARE(messages.take(), QStringList());
    }

    void aCursorHasTheHotspotOfItsFile()
    {
        applyTheme();
        const QCursor cursor = ThemeResources::getCursor(text("pick.plus"));
        QCOMPARE(cursor.shape(), Qt::BitmapCursor);
        QCOMPARE(cursor.pixmap().size(), QSize(32, 32));
        QFile file(text(":/Cursors/pick.plus.cur"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray header = file.read(14);
        QCOMPARE(cursor.hotSpot(), QPoint(header.at(10), header.at(12)));
    }

    void everyCursorIsThere()
    {
        QCOMPARE(QDir(text(":/Cursors")).entryList().size(), int(std::size(cursorNames)));
        applyTheme();
        for (const char *name : cursorNames) {
            const QCursor cursor = ThemeResources::getCursor(text(name));
            QVERIFY2(cursor.shape() == Qt::BitmapCursor, name);
            QCOMPARE(cursor.pixmap().size(), QSize(32, 32));
            QVERIFY2(cursor.pixmap().rect().contains(cursor.hotSpot()), name);
            QCOMPARE(isEmpty(pixels(cursor.pixmap())), text(name) == text("_blank"));
        }
    }
};

QTEST_MAIN(CompiledInImagesTest)
#include "CompiledInImagesTest.moc"
