#include "icons/IconCheck.h"

#include "icons/Drawing.h"
#include "icons/Rendering.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QImage>

#include <algorithm>
#include <cmath>

namespace TARN::Artwork {

namespace {

constexpr double LeastCoverage = 0.05;
constexpr double MostCoverage = 0.80;
constexpr double LeastDifference = 0.03;
// What antialiasing leaves of a line that ends at the margin can't be seen.
constexpr int VisibleAlpha = 16;

const QRgb *pixels(const QImage &image)
{
    return reinterpret_cast<const QRgb *>(image.constBits());
}

/// The part of the picture that is covered.
double coverage(const QImage &image)
{
    const int count = image.width() * image.height();
    double sum = 0;
    for (int i = 0; i < count; ++i) {
        sum += qAlpha(pixels(image)[i]) / 255.0;
    }
    return count > 0 ? sum / count : 0;
}

int channelDifference(QRgb a, QRgb b)
{
    return std::max({std::abs(qAlpha(a) - qAlpha(b)), std::abs(qRed(a) - qRed(b)),
                     std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

/// The part of what either picture covers in which they differ.
double difference(const QImage &a, const QImage &b)
{
    const int count = a.width() * a.height();
    int differing = 0;
    int covered = 0;
    for (int i = 0; i < count; ++i) {
        const QRgb first = pixels(a)[i];
        const QRgb second = pixels(b)[i];
        covered += std::max(qAlpha(first), qAlpha(second));
        if (first != second) {
            differing += channelDifference(first, second);
        }
    }
    return covered > 0 ? double(differing) / covered : 0;
}

bool touchesEdge(const QImage &image)
{
    const int last = image.width() - 1;
    for (int i = 0; i <= last; ++i) {
        for (const QPoint point : {QPoint(i, 0), QPoint(i, last), QPoint(0, i), QPoint(last, i)}) {
            if (qAlpha(image.pixel(point)) >= VisibleAlpha) {
                return true;
            }
        }
    }
    return false;
}

bool mayBeColored(const QString &name)
{
    static const QRegularExpression rule(
        QStringLiteral("^(product|mimetype)\\.|\\.colored(\\.\\d+x)?$"));
    return rule.match(name).hasMatch();
}

void checkName(const QString &name, QStringList *findings)
{
    static const QRegularExpression rule(
        QStringLiteral("^[a-z]+(\\.[a-z]+|\\.[23]d)+(\\.(24|32)x)?$"));
    if (!rule.match(name).hasMatch()) {
        findings->append(name + QStringLiteral(": not lower-case words joined by dots"));
    }
    if (!iconFamilies().contains(name.section(QLatin1Char('.'), 0, 0))) {
        findings->append(name + QStringLiteral(": of no family"));
    }
}

void checkColors(const QString &name, const QString &svg, const Palette &palette,
                 QStringList *findings)
{
    static const QRegularExpression paint(QStringLiteral("\\b(?:fill|stroke)=\"([^\"]*)\""));
    for (auto match = paint.globalMatch(svg); match.hasNext();) {
        const QString color = match.next().captured(1);
        const QString colorName = palette.key(color);
        if (color != u"none" && colorName.isEmpty()) {
            findings->append(name + QStringLiteral(": colour not in the palette: ") + color);
        } else if (color != u"none" && colorName != u"ink" && !mayBeColored(name)) {
            findings->append(name + QStringLiteral(": may not be coloured: ") + colorName);
        }
    }
}

void checkElements(const QString &name, const QString &svg, QStringList *findings)
{
    static const QRegularExpression elements(
        QStringLiteral("<(?!/|svg |path |circle |ellipse |rect )"));
    static const QRegularExpression attributes(QStringLiteral(
        " (?!xmlns|width|height|viewBox|fill|fill-opacity|fill-rule|stroke|stroke-linecap|"
        "stroke-linejoin|stroke-width|transform|d|cx|cy|r|rx|ry|x|y)[a-zA-Z:-]+="));
    if (svg.contains(elements) || svg.contains(attributes)) {
        findings->append(name + QStringLiteral(": holds more than plain shapes"));
    }
}

void checkPicture(const QString &name, const QByteArray &svg, QStringList *findings)
{
    for (const int side : {16, 32}) {
        const double covered = coverage(rendered(svg, side));
        if (covered < LeastCoverage || covered > MostCoverage) {
            findings->append(QStringLiteral("%1: covers %2 % at %3 pixels")
                                 .arg(name)
                                 .arg(covered * 100, 0, 'f', 1)
                                 .arg(side));
        }
    }
    if (touchesEdge(rendered(svg, gridSize(name)))) {
        findings->append(name + QStringLiteral(": touches the edge"));
    }
}

struct Likeness
{
    double difference;
    QString first;
    QString second;
};

QVector<QPair<QString, QImage>> renderedAll(const QMap<QString, QByteArray> &files, int side)
{
    QVector<QPair<QString, QImage>> images;
    for (auto file = files.begin(); file != files.end(); ++file) {
        images.append({file.key(), rendered(file.value(), side)});
    }
    return images;
}

QVector<Likeness> likenesses(const QMap<QString, QByteArray> &files, double limit)
{
    QVector<Likeness> result;
    for (const int side : {16, 32}) {
        const auto images = renderedAll(files, side);
        for (int i = 0; i < images.size(); ++i) {
            for (int j = i + 1; j < images.size(); ++j) {
                const double value = difference(images.at(i).second, images.at(j).second);
                if (value < limit) {
                    result.append({value, images.at(i).first, images.at(j).first});
                }
            }
        }
    }
    std::sort(result.begin(), result.end(),
              [](const Likeness &a, const Likeness &b) { return a.difference < b.difference; });
    return result;
}

} // namespace

const QStringList &iconFamilies()
{
    static const QStringList families =
        QStringLiteral("action viewer status view tool arrow treeview clip align geometry chevron "
                       "message measure filter grid file symbols mimetype plot chart system "
                       "product")
            .split(QLatin1Char(' '));
    return families;
}

QStringList checkIcons(const QMap<QString, QByteArray> &files, const Palette &palette)
{
    QStringList findings;
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString svg = QString::fromUtf8(file.value());
        checkName(file.key(), &findings);
        checkColors(file.key(), svg, palette, &findings);
        checkElements(file.key(), svg, &findings);
        checkPicture(file.key(), file.value(), &findings);
    }
    for (const QString &pair : similarIcons(files, LeastDifference)) {
        findings.append(pair + QStringLiteral(": look alike"));
    }
    return findings;
}

QStringList similarIcons(const QMap<QString, QByteArray> &files, double limit)
{
    QStringList lines;
    for (const Likeness &likeness : likenesses(files, limit)) {
        lines.append(QStringLiteral("%1 % %2 %3")
                         .arg(likeness.difference * 100, 0, 'f', 1)
                         .arg(likeness.first, likeness.second));
    }
    return lines;
}

} // namespace TARN::Artwork
