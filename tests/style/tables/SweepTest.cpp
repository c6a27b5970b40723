#include <style/BaseStyle.h>

#include <QtTest/QtTest>

#include <memory>
#include <support/MessageRecorder.h>
#include <support/PainterState.h>
#include <support/TestedMode.h>
#include <support/Text.h>
#include <support/sweep/SweepMaterial.h>
#include <support/themes/PaintTheme.h>

using namespace TARN::Gallery;
using TARN::BaseStyle;

namespace {

constexpr QSize pictureSize(120, 60);

/// A picture and a painter that is set to nothing that it is by default.
class Canvas
{
public:
    Canvas()
        : m_image(pictureSize, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.fill(Qt::black);
        m_painter.begin(&m_image);
        m_painter.setPen(QPen(QColor(1, 2, 3), 3, Qt::DotLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.setBrush(QBrush(QColor(4, 5, 6), Qt::Dense3Pattern));
        m_painter.setBrushOrigin(3, 1);
        m_painter.setFont(QFont(text("DejaVu Sans"), 11));
        m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
        m_painter.translate(1, 2);
        m_painter.setClipRect(QRect(0, 0, 110, 50));
        m_painter.setOpacity(0.75);
        m_painter.setBackground(QColor(7, 8, 9));
        m_painter.setBackgroundMode(Qt::OpaqueMode);
        m_painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        m_painter.setLayoutDirection(Qt::RightToLeft);
    }

    QPainter &painter() { return m_painter; }

private:
    QImage m_image;
    QPainter m_painter;
};

QString describe(const QStyleOption &option, const QWidget *widget)
{
    return text("option of type %1, rectangle %2,%3 %4x%5, %6")
        .arg(option.type)
        .arg(option.rect.x())
        .arg(option.rect.y())
        .arg(option.rect.width())
        .arg(option.rect.height())
        .arg(widget ? text(widget->metaObject()->className()) : text("no widget"));
}

/// Something that the style leaves to its base style, which leaves the painter changed.
struct Change
{
    const char *element;
    const char *names;
};

constexpr Change baseStyleChanges[] = {
    {"PE_IndicatorMenuCheckMark", "pen"},
    {"PE_IndicatorTabTear", "pen, brush, render hints"},
    {"CE_MenuTearoff", "pen"},
    // From drawItemPixmap(), whose hints stay on.
    {"CC_MdiControls", "render hints"},
};

/// What the base style draws into a picture as large as the rectangle, be it gigabytes.
constexpr const char *drawnIntoPictures[] = {
    "PE_IndicatorBranch", "PE_IndicatorHeaderArrow", "CE_Header", "CE_HeaderSection", "CC_Dial",
    "CC_MdiControls",
};

bool isLeftToBaseStyle(const ElementId &id)
{
    const TARN::StyleElement &row = rowsOf(id.table).at(id.element);
    return !(testsCompleteMode() ? row.isPaintedInCompleteMode : row.isPainted);
}

/// Returns what painting the element may change, unless the style paints it itself.
QString toleratedChanges(const ElementId &id)
{
    for (const Change &change : baseStyleChanges) {
        if (isLeftToBaseStyle(id) && elementName(id) == text(change.element)) {
            return text(change.names);
        }
    }
    return {};
}

QVector<QRect> rectsFor(const ElementId &id)
{
    QVector<QRect> rects = SweepMaterial::rects();
    for (const char *name : drawnIntoPictures) {
        if (isLeftToBaseStyle(id) && elementName(id) == text(name)) {
            rects.erase(std::remove_if(rects.begin(), rects.end(), SweepMaterial::isHuge),
                        rects.end());
        }
    }
    return rects;
}

/// Paints one element again and again, and notes when the painter is not as it was found.
class ElementSweep
{
public:
    ElementSweep(const ElementId &id, const SweepMaterial &material)
        : m_id(id)
        , m_rects(rectsFor(id))
        , m_tolerated(toleratedChanges(id))
        , m_material(material)
    {
    }

    void paintRightOptions();
    void paintWrongOptions();

    const QStringList &problems() const { return m_problems; }

private:
    void paintEverywhere(QStyleOption &option, const QWidget *widget);
    void paint(const QStyleOption &option, const QWidget *widget);

    ElementId m_id;
    QVector<QRect> m_rects;
    QString m_tolerated;
    const SweepMaterial &m_material;
    std::unique_ptr<Canvas> m_canvas = std::make_unique<Canvas>();
    PainterState m_found{m_canvas->painter()};
    QStringList m_problems;
};

void ElementSweep::paintRightOptions()
{
    for (const ElementSubject *sample : m_material.samplesOf(m_id)) {
        const ElementOption option = sample->option();
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option->direction = direction;
            paintEverywhere(*option, sample->widget());
        }
        for (const QWidget *widget : m_material.widgets()) {
            paint(*sample->option(), widget);
        }
        paintEverywhere(*option, nullptr);
    }
}

void ElementSweep::paintWrongOptions()
{
    const std::vector<ElementOption> options = m_id.table == ElementTable::ComplexControls
                                                   ? m_material.complexOptions()
                                                   : m_material.options();
    const std::vector<ElementSubject *> samples = m_material.samplesOf(m_id);
    for (std::size_t i = 0; i < options.size(); ++i) {
        QStyleOption &option = *options[i];
        const QRect rect = option.rect;
        paintEverywhere(option, nullptr);
        paintEverywhere(option, m_material.widgets()[i % m_material.widgets().size()]);
        for (const QWidget *widget : m_material.widgets()) {
            option.rect = rect;
            paint(option, widget);
        }
        if (!samples.empty()) {
            paintEverywhere(option, samples.front()->widget());
        }
        option.rect = rect;
    }
}

void ElementSweep::paintEverywhere(QStyleOption &option, const QWidget *widget)
{
    for (const QRect &rect : m_rects) {
        option.rect = rect;
        paint(option, widget);
    }
}

void ElementSweep::paint(const QStyleOption &option, const QWidget *widget)
{
    paintElement(m_id, *QApplication::style(), option, m_canvas->painter(), widget);
    const QString changes = m_found.differences(m_canvas->painter()).join(text(", "));
    if (changes.isEmpty()) {
        return;
    }
    m_canvas = std::make_unique<Canvas>();
    if (changes != m_tolerated) {
        m_problems.append(changes + text(" changed: ") + describe(option, widget));
    }
}

void addElements(ElementTable table)
{
    QTest::addColumn<int>("element");
    for (const TARN::StyleElement &row : rowsOf(table)) {
        QTest::newRow(row.name) << row.element;
    }
}

void publishTheme()
{
    PaintTheme::Radii radii;
    radii.small = 2;
    radii.base = 4;
    radii.medium = 6;
    radii.large = 8;
    const PaintTheme theme(radii);
}

/// By default there is no theme at all; the complete mode is one of a theme, which may be empty.
void publishNothing()
{
    enterTestedMode();
}

} // namespace

/// Whatever the style is asked to paint, and with whatever, it does not crash and leaves the
/// painter as it found it.
class SweepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void primitives_data() { addElements(ElementTable::Primitives); }
    void primitives() { sweep<QStyle::PrimitiveElement>(publishTheme); }
    void controls_data() { addElements(ElementTable::Controls); }
    void controls() { sweep<QStyle::ControlElement>(publishTheme); }
    void complexControls_data() { addElements(ElementTable::ComplexControls); }
    void complexControls() { sweep<QStyle::ComplexControl>(publishTheme); }
    void primitivesWithoutTheme_data() { addElements(ElementTable::Primitives); }
    void primitivesWithoutTheme() { sweep<QStyle::PrimitiveElement>(publishNothing); }
    void controlsWithoutTheme_data() { addElements(ElementTable::Controls); }
    void controlsWithoutTheme() { sweep<QStyle::ControlElement>(publishNothing); }
    void complexControlsWithoutTheme_data() { addElements(ElementTable::ComplexControls); }
    void complexControlsWithoutTheme() { sweep<QStyle::ComplexControl>(publishNothing); }
    void nothingIsPaintedWithoutOptionOrPainter();
    void elementsThatDoNotExist();
    void cleanupTestCase() { m_material.reset(); }

private:
    /// Makes what is painted with, once in a process. \a publish comes before.
    void prepare(void (*publish)());

    template <typename Element>
    void sweep(void (*publish)());

    std::unique_ptr<SweepMaterial> m_material;
};

void SweepTest::prepare(void (*publish)())
{
    if (m_material) {
        return;
    }
    publish();
    QApplication::setStyle(new BaseStyle);
    m_material = std::make_unique<SweepMaterial>();
}

template <typename Element>
void SweepTest::sweep(void (*publish)())
{
    QFETCH(const int, element);
    prepare(publish);
    QStringList problems;
    {
        // The toolkit complains about pictures and frames that it cannot draw.
        const MessageRecorder toolkitMessages;
        ElementSweep sweep(Element(element), *m_material);
        sweep.paintRightOptions();
        sweep.paintWrongOptions();
        problems = sweep.problems();
    }
    for (const QString &problem : problems.mid(0, 10)) {
        qWarning("%s", qPrintable(problem));
    }
    QVERIFY(problems.isEmpty());
}

void SweepTest::nothingIsPaintedWithoutOptionOrPainter()
{
    const BaseStyle style;
    QImage picture(pictureSize, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const QImage untouched = picture;
    QPainter painter(&picture);
    const QStyleOptionComplex option;
    for (const auto table :
         {ElementTable::Primitives, ElementTable::Controls, ElementTable::ComplexControls}) {
        for (const TARN::StyleElement &row : rowsOf(table)) {
            switch (table) {
            case ElementTable::Primitives:
                style.drawPrimitive(QStyle::PrimitiveElement(row.element), nullptr, &painter);
                style.drawPrimitive(QStyle::PrimitiveElement(row.element), &option, nullptr);
                break;
            case ElementTable::Controls:
                style.drawControl(QStyle::ControlElement(row.element), nullptr, &painter);
                style.drawControl(QStyle::ControlElement(row.element), &option, nullptr);
                break;
            case ElementTable::ComplexControls:
                style.drawComplexControl(QStyle::ComplexControl(row.element), nullptr, &painter);
                style.drawComplexControl(QStyle::ComplexControl(row.element), &option, nullptr);
                break;
            }
        }
    }
    QCOMPARE(picture, untouched);
}

void SweepTest::elementsThatDoNotExist()
{
    prepare(publishTheme);
    const QStyle &style = *QApplication::style();
    const MessageRecorder toolkitMessages;
    Canvas canvas;
    const PainterState found(canvas.painter());
    for (const int element : {200, 0x0f000000, 0x0f000001, 0x0ffffff0}) {
        for (const ElementOption &option : m_material->options()) {
            style.drawPrimitive(QStyle::PrimitiveElement(element), option.get(), &canvas.painter());
            style.drawControl(QStyle::ControlElement(element), option.get(), &canvas.painter());
        }
        for (const ElementOption &option : m_material->complexOptions()) {
            style.drawComplexControl(QStyle::ComplexControl(element),
                                     static_cast<QStyleOptionComplex *>(option.get()),
                                     &canvas.painter());
        }
    }
    QCOMPARE(found.differences(canvas.painter()), QStringList());
}

QTEST_MAIN(SweepTest)
#include "SweepTest.moc"
