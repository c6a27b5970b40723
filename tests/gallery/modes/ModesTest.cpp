#include "gallery/modes/PagePictures.h"
#include "gallery/modes/PermittedDifferences.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <array>

using TARN::Gallery::Page;
using TARN::Gallery::pages;

namespace {

/// The share of the pixels of a page that may differ anywhere, as at the corners of borders.
constexpr double permittedShare = 0.0005;
constexpr int permittedLevels = 2;

/// The pictures of all pages by default, which another process paints: whether an application is
/// in the complete mode it tells for all of its life.
class DefaultPictures
{
public:
    explicit DefaultPictures(const QString &theme)
    {
        m_painter.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_painter.start(QStringLiteral(MOX_PAGE_PAINTER), {theme});
    }
    ~DefaultPictures()
    {
        m_painter.kill();
        m_painter.waitForFinished();
    }

    /// Returns the picture of the next page; an empty one when there is none.
    QImage next()
    {
        std::array<qint32, 2> size{};
        if (!read(reinterpret_cast<char *>(size.data()), sizeof(size))) {
            return {};
        }
        QImage picture(size[0], size[1], QImage::Format_RGB32);
        return read(reinterpret_cast<char *>(picture.bits()), picture.sizeInBytes()) ? picture
                                                                                     : QImage();
    }

private:
    bool read(char *data, qint64 byteCount)
    {
        for (qint64 done = 0; done < byteCount;) {
            const qint64 count = m_painter.read(data + done, byteCount - done);
            if (count < 0 || (count == 0 && !m_painter.waitForReadyRead())) {
                return false;
            }
            done += count;
        }
        return true;
    }

    QProcess m_painter;
};

bool isSame(QRgb first, QRgb second)
{
    return qAbs(qRed(first) - qRed(second)) <= permittedLevels &&
           qAbs(qGreen(first) - qGreen(second)) <= permittedLevels &&
           qAbs(qBlue(first) - qBlue(second)) <= permittedLevels;
}

/// Makes all pixels of \a region one colour.
void blank(QImage &picture, const QRegion &region, qreal scale)
{
    QPainter painter(&picture);
    painter.scale(scale, scale);
    for (const QRect &rect : region) {
        painter.fillRect(rect, Qt::magenta);
    }
}

/// What differs between two pictures.
struct Difference
{
    int pixelCount = 0;
    QRect bounds;
};

Difference differenceOf(const QImage &first, const QImage &second)
{
    Difference difference;
    for (int y = 0; y < first.height(); ++y) {
        const auto *a = reinterpret_cast<const QRgb *>(first.constScanLine(y));
        const auto *b = reinterpret_cast<const QRgb *>(second.constScanLine(y));
        for (int x = 0; x < first.width(); ++x) {
            if (a[x] != b[x] && !isSame(a[x], b[x])) {
                ++difference.pixelCount;
                difference.bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return difference;
}

void save(const QImage &picture, const QString &name)
{
    const QDir folder(QStringLiteral(MOX_DIFFERING_PICTURES));
    folder.mkpath(QStringLiteral("."));
    picture.save(folder.filePath(name + QLatin1String(".png")));
}

/// Returns how the pictures differ, which are then kept to be looked at; nothing if they do not.
QString comparison(const QImage &byDefault, const QImage &complete, const QString &name)
{
    if (byDefault.size() != complete.size()) {
        return QStringLiteral("%1 is not of one size").arg(name);
    }
    const Difference difference = differenceOf(byDefault, complete);
    const int permitted = int(permittedShare * complete.width() * complete.height());
    if (difference.pixelCount <= permitted) {
        return {};
    }
    save(byDefault, name + QLatin1String("-default"));
    save(complete, name + QLatin1String("-complete"));
    const QRect &bounds = difference.bounds;
    return QStringLiteral("%1 differs in %2 pixels, %3 may; they lie in %4, %5, %6 x %7")
        .arg(name)
        .arg(difference.pixelCount)
        .arg(permitted)
        .arg(bounds.x())
        .arg(bounds.y())
        .arg(bounds.width())
        .arg(bounds.height());
}

QString comparePage(const Page &page, QImage byDefault, const QString &theme)
{
    if (byDefault.isNull()) {
        return page.id + QLatin1String(" was not painted by default");
    }
    const ShownPage shown(page);
    QImage complete = shown.picture();
    const qreal scale = shown.window().devicePixelRatioF();
    const QRegion permitted = permittedDifferences(page.id, shown.window());
    blank(byDefault, permitted, scale);
    blank(complete, permitted, scale);
    return comparison(byDefault, complete,
                      QStringLiteral("%1-%2-%3").arg(page.id, theme).arg(scale));
}

void comparePages(const QString &theme)
{
    DefaultPictures byDefault(theme);
    applyShippedTheme(theme, true);
    QStringList differences;
    for (const Page &page : pages()) {
        const QString difference = comparePage(page, byDefault.next(), theme);
        if (!difference.isEmpty()) {
            differences.append(difference);
        }
    }
    for (const QString &difference : qAsConst(differences)) {
        // A message of the test is cut off.
        qInfo("%s", qPrintable(difference));
    }
    QCOMPARE(differences.size(), 0);
}

} // namespace

/// Compares what is seen of the pages of the gallery in both modes, but for their texts.
class ModesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void darkPagesAreAsByDefault() { comparePages(QStringLiteral("Dark")); }
    void lightPagesAreAsByDefault() { comparePages(QStringLiteral("Light")); }
    void highContrastPagesAreAsByDefault() { comparePages(QStringLiteral("HighContrast")); }
};

QTEST_MAIN(ModesTest)
#include "ModesTest.moc"
