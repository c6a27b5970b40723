#include "icons/DrawingParser.h"

#include <QtCore/QHash>

#include <array>
#include <optional>

namespace TARN::Artwork {

namespace {

using Words = QStringList;

struct Statement
{
    QString text;
    int line = 0;
};

QVector<Statement> statements(const QString &text)
{
    QVector<Statement> result;
    int number = 0;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        ++number;
        if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (line.at(0).isSpace() && !result.isEmpty()) {
            result.last().text += QLatin1Char(' ') + line.trimmed();
        } else {
            result.append({line.trimmed(), number});
        }
    }
    return result;
}

std::optional<Paint> paintOf(const QString &word)
{
    static const QHash<QString, Paint> paints = {{QStringLiteral("line"), Paint::Line},
                                                 {QStringLiteral("solid"), Paint::Solid},
                                                 {QStringLiteral("soft"), Paint::Soft},
                                                 {QStringLiteral("clear"), Paint::Clear},
                                                 {QStringLiteral("groove"), Paint::Groove}};
    const auto found = paints.constFind(word);
    return found == paints.constEnd() ? std::nullopt : std::optional<Paint>(*found);
}

struct ElementForm
{
    const char *name;
    std::array<const char *, 5> attributes;
    int required;
};

constexpr ElementForm ElementForms[] = {{"circle", {"cx", "cy", "r"}, 3},
                                        {"ellipse", {"cx", "cy", "rx", "ry"}, 4},
                                        {"rect", {"x", "y", "width", "height", "rx"}, 4}};

bool areNumbers(const Words &words)
{
    return std::all_of(words.begin(), words.end(), [](const QString &word) {
        bool isNumber = false;
        word.toDouble(&isNumber);
        return isNumber;
    });
}

/// Returns the SVG element for \a words; empty when they are no geometry.
QString elementOf(const Words &words)
{
    if (words.isEmpty()) {
        return {};
    }
    if (words.first().startsWith(QLatin1Char('M'))) {
        return QStringLiteral("path d=\"%1\"").arg(words.join(QLatin1Char(' ')));
    }
    const Words values = words.mid(1);
    for (const ElementForm &form : ElementForms) {
        const bool hasCount = values.size() == form.required ||
                              (values.size() == form.required + 1 && words.first() == u"rect");
        if (words.first() != QLatin1String(form.name) || !hasCount || !areNumbers(values)) {
            continue;
        }
        QString element = words.first();
        for (int i = 0; i < values.size(); ++i) {
            element += QStringLiteral(" %1=\"%2\"")
                           .arg(QLatin1String(form.attributes.at(std::size_t(i))), values.at(i));
        }
        return element;
    }
    return {};
}

std::optional<Shape> shapeOf(Words words)
{
    Shape shape;
    shape.paint = *paintOf(words.takeFirst());
    shape.color = QStringLiteral("ink");
    shape.element = elementOf(words);
    if (shape.element.isEmpty() && words.size() > 1) {
        shape.color = words.takeFirst();
        shape.element = elementOf(words);
    }
    return shape.element.isEmpty() ? std::nullopt : std::optional<Shape>(shape);
}

QTransform aboutMiddle(const QTransform &transform, double middle)
{
    return QTransform::fromTranslate(-middle, -middle) * transform *
           QTransform::fromTranslate(middle, middle);
}

/// Takes one change of place from the beginning of \a words.
std::optional<QTransform> takeTransform(Words *words, double middle)
{
    const QString word = words->takeFirst();
    const auto takeNumber = [words] {
        return words->isEmpty() ? qQNaN() : words->takeFirst().toDouble();
    };
    if (word == u"moved") {
        const double x = takeNumber();
        return QTransform::fromTranslate(x, takeNumber());
    }
    if (word == u"turned") {
        return aboutMiddle(QTransform().rotate(takeNumber()), middle);
    }
    if (word == u"mirrored") {
        return aboutMiddle(QTransform::fromScale(-1, 1), middle);
    }
    if (word == u"flipped") {
        return aboutMiddle(QTransform::fromScale(1, -1), middle);
    }
    if (word == u"scaled") {
        const double factor = takeNumber();
        return aboutMiddle(QTransform::fromScale(factor, factor), middle);
    }
    return std::nullopt;
}

bool isFinite(const QTransform &transform)
{
    return qIsFinite(transform.m11() + transform.m12() + transform.m21() + transform.m22() +
                     transform.dx() + transform.dy());
}

std::optional<Reference> referenceOf(Words words, double middle)
{
    Reference reference;
    reference.name = words.takeFirst();
    while (!words.isEmpty()) {
        const std::optional<QTransform> transform = takeTransform(&words, middle);
        if (!transform || !isFinite(*transform)) {
            return std::nullopt;
        }
        reference.transform *= *transform;
    }
    return reference;
}

std::optional<Layer> layerOf(const QString &text, double middle)
{
    const Words words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty()) {
        return std::nullopt;
    }
    if (paintOf(words.first())) {
        return shapeOf(words);
    }
    return referenceOf(words, middle);
}

} // namespace

int gridSize(const QString &name)
{
    const QString last = name.mid(name.lastIndexOf(QLatin1Char('.')) + 1);
    if (!last.endsWith(QLatin1Char('x'))) {
        return 16;
    }
    const int size = last.chopped(1).toInt();
    return size > 0 ? size : 16;
}

QVector<Drawing> parseDrawings(const QString &text, const QString &fileName, QStringList *errors)
{
    QVector<Drawing> drawings;
    for (const Statement &statement : statements(text)) {
        Drawing drawing;
        drawing.origin = QStringLiteral("%1:%2").arg(fileName).arg(statement.line);
        const int colon = statement.text.indexOf(QLatin1Char(':'));
        drawing.name = statement.text.left(colon);
        if (colon < 1 || drawing.name.contains(QLatin1Char(' '))) {
            errors->append(drawing.origin + QStringLiteral(": expected \"name: layers\""));
            continue;
        }
        for (const QString &layer : statement.text.mid(colon + 1).split(QLatin1Char(';'))) {
            const std::optional<Layer> parsed = layerOf(layer, gridSize(drawing.name) / 2.0);
            if (parsed) {
                drawing.layers.append(*parsed);
            } else {
                errors->append(drawing.origin +
                               QStringLiteral(": no layer: \"%1\"").arg(layer.trimmed()));
            }
        }
        drawings.append(drawing);
    }
    return drawings;
}

} // namespace TARN::Artwork
