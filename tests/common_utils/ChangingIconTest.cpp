#include "common_utils/TestIcons.h"

#include <QtCore/QFile>
#include <QtGui/QPixmapCache>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace {

const QColor tint(0x1c, 0x8a, 0x3c);

QByteArray filledDrawing()
{
    return svg("<path d='M0 0h16v16H0z' fill='#e5eef4'/>");
}

/// A tinted icon of an engine that may show something else at any time.
struct TintedBadge
{
    Badge badge;
    QIcon icon = tinted(QIcon(new BadgeEngine(&badge)), tint);

    QColor shown(QIcon::Mode mode = QIcon::Normal) const
    {
        return pixels(icon, 16, mode).pixelColor(4, 4);
    }
};

} // namespace

/// Tinted icons of sources that change, and of such that can't.
class ChangingIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsItsSource()
    {
        TintedBadge tinted;
        QCOMPARE(tinted.shown(), tint);
        tinted.badge.color = Qt::red;
        QCOMPARE(tinted.shown(), QColor(Qt::red));
        QCOMPARE(painted(tinted.icon, {16, 16}, 2).pixelColor(9, 9), QColor(Qt::red));
        tinted.badge.color = foreground;
        QCOMPARE(tinted.shown(), tint);
        QCOMPARE(painted(tinted.icon, {16, 16}, 2).pixelColor(9, 9), tint);
    }

    void followsTheSizeOfItsSource()
    {
        TintedBadge tinted;
        QCOMPARE(tinted.icon.actualSize({16, 16}), QSize(16, 16));
        tinted.badge.divisor = 2;
        QCOMPARE(tinted.icon.actualSize({16, 16}), QSize(8, 8));
        QCOMPARE(pixels(tinted.icon, 16).size(), QSize(8, 8));
    }

    // What was no picture of its own yet may become one, and the other way round.
    void followsEachModeOfItsSource()
    {
        TintedBadge tinted;
        const QColor effect = tinted.shown(QIcon::Disabled);
        tinted.badge.disabledColor = Qt::blue;
        QCOMPARE(tinted.shown(QIcon::Disabled), QColor(Qt::blue));
        QCOMPARE(tinted.shown(), tint);
        tinted.badge.disabledColor = QColor();
        tinted.badge.color = Qt::red;
        const QColor other = tinted.shown(QIcon::Disabled);
        QVERIFY(other != QColor(Qt::blue));
        tinted.badge.color = foreground;
        QCOMPARE(tinted.shown(QIcon::Disabled), effect);
    }

    void followsTheSourceOfATintedSource()
    {
        TintedBadge once;
        const QIcon twice = tinted(once.icon, Qt::yellow);
        QCOMPARE(pixels(twice, 16).pixelColor(4, 4), tint);
        once.badge.color = Qt::red;
        QCOMPARE(pixels(twice, 16).pixelColor(4, 4), QColor(Qt::red));
    }

    void samePictureIsNotTintedAgain()
    {
        const TintedBadge tinted;
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
            tinted.icon.pixmap(16, mode);
            const qint64 first = tinted.icon.pixmap(16, mode).cacheKey();
            QCOMPARE(tinted.icon.pixmap(16, mode).cacheKey(), first);
        }
    }

    // Finding out what an icon is made of takes none of its pictures.
    void pictureIsNotAskedForBeforeItIsShown()
    {
        const TintedBadge tinted;
        QCOMPARE(tinted.badge.paintings, 0);
    }

    // A file is read once, so that its icon needs no asking.
    void drawingIsKept()
    {
        const QString path = writeSvg(filledDrawing());
        const QIcon icon = tinted(QIcon(path), tint);
        const QImage before = pixels(icon, 16);
        QCOMPARE(before.pixelColor(8, 8), tint);
        QVERIFY(QFile::remove(path));
        QPixmapCache::clear();
        QCOMPARE(pixels(icon, 16), before);
    }

    void changedCopyIsAnotherIcon()
    {
        QIcon icon = plainPixmap({16, 16}, foreground);
        const QIcon before = tinted(icon, tint);
        QCOMPARE(pixels(before, 16).pixelColor(4, 4), tint);
        icon.addPixmap(plainPixmap({16, 16}, Qt::red));
        QCOMPARE(pixels(tinted(icon, tint), 16).pixelColor(4, 4), QColor(Qt::red));
        QCOMPARE(pixels(before, 16).pixelColor(4, 4), tint);
    }

    void tintedIconCanBeStreamed()
    {
        const TintedBadge tinted;
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << tinted.icon;
        QIcon read;
        QDataStream in(bytes);
        in >> read;
        QCOMPARE(pixels(read, 16).pixelColor(4, 4), tint);
    }
};

QTEST_MAIN(ChangingIconTest)
#include "ChangingIconTest.moc"
