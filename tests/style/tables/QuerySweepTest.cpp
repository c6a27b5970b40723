#include <style/BaseStyle.h>

#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <memory>
#include <support/MessageRecorder.h>
#include <support/PainterState.h>
#include <support/Text.h>
#include <support/sweep/SweepMaterial.h>
#include <support/themes/PaintTheme.h>

using namespace TARN::Gallery;
using TARN::BaseStyle;

namespace {

constexpr int unreasonable = 1 << 20;

/// Returns the values of an enumeration of the style.
template <typename Enumeration>
QVector<Enumeration> valuesOf()
{
    const QMetaEnum meta = QMetaEnum::fromType<Enumeration>();
    QVector<Enumeration> values;
    for (int i = 0; i < meta.keyCount(); ++i) {
        // Where an application's own values begin, the toolkit has nothing to say.
        if (!QByteArray(meta.key(i)).endsWith("CustomBase")) {
            values.append(Enumeration(meta.value(i)));
        }
    }
    return values;
}

/// The base style asks the tab bar without looking whether there is one.
bool needsWidget(QStyle::SubElement element)
{
    return element == QStyle::SE_TabBarScrollLeftButton ||
           element == QStyle::SE_TabBarScrollRightButton;
}

} // namespace

/// Whatever the style is asked, and about whatever, it does not crash and answers within reason.
class QuerySweepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_material.reset(); }

    void metrics();
    void hints();
    void subElements();
    void subControls();
    void contents();
    void standardPictures();
    void itemTexts();
    void itemPictures();

private:
    /// Calls \a ask with each option, on behalf of each widget, and of none.
    template <typename Ask>
    void askAll(const std::vector<ElementOption> &options, const Ask &ask) const;
    /// Calls \a ask as above, with each option in each rectangle.
    template <typename Ask>
    void askEverywhere(const std::vector<ElementOption> &options, const Ask &ask) const;

    static const QStyle &style() { return *QApplication::style(); }

    std::unique_ptr<SweepMaterial> m_material;
};

void QuerySweepTest::initTestCase()
{
    if (!qEnvironmentVariableIsSet("MOX_WITHOUT_THEME")) {
        const PaintTheme theme;
    }
    QApplication::setStyle(new BaseStyle);
    m_material = std::make_unique<SweepMaterial>();
}

template <typename Ask>
void QuerySweepTest::askAll(const std::vector<ElementOption> &options, const Ask &ask) const
{
    // The toolkit complains about what it has no answer to.
    const MessageRecorder toolkitMessages;
    for (const QWidget *widget : m_material->widgets()) {
        for (const ElementOption &option : options) {
            ask(*option, widget);
        }
    }
}

template <typename Ask>
void QuerySweepTest::askEverywhere(const std::vector<ElementOption> &options, const Ask &ask) const
{
    askAll(options, [&ask](QStyleOption &option, const QWidget *widget) {
        const QRect found = option.rect;
        for (const QRect &rect : SweepMaterial::rects()) {
            option.rect = rect;
            ask(option, widget);
        }
        option.rect = found;
    });
}

void QuerySweepTest::metrics()
{
    QVector<QStyle::PixelMetric> metrics = valuesOf<QStyle::PixelMetric>();
    metrics.append(QStyle::PixelMetric(BaseStyle::TARN_PM_ListViewPadding));
    for (const auto metric : qAsConst(metrics)) {
        int largest = qAbs(style().pixelMetric(metric));
        askAll(m_material->options(), [&](const QStyleOption &option, const QWidget *widget) {
            largest = qMax(largest, qAbs(style().pixelMetric(metric, &option, widget)));
        });
        QVERIFY2(largest < unreasonable, qPrintable(QString::number(metric)));
    }
}

void QuerySweepTest::hints()
{
    for (const auto hint : valuesOf<QStyle::StyleHint>()) {
        style().styleHint(hint);
        askAll(m_material->options(), [&](const QStyleOption &option, const QWidget *widget) {
            QStyleHintReturnMask mask;
            style().styleHint(hint, &option, widget);
            style().styleHint(hint, &option, widget, &mask);
        });
    }
}

void QuerySweepTest::subElements()
{
    for (const auto element : valuesOf<QStyle::SubElement>()) {
        askEverywhere(m_material->options(),
                      [&](const QStyleOption &option, const QWidget *widget) {
                          if (widget || !needsWidget(element)) {
                              style().subElementRect(element, &option, widget);
                          }
                      });
    }
}

void QuerySweepTest::subControls()
{
    for (const auto control : valuesOf<QStyle::ComplexControl>()) {
        askEverywhere(
            m_material->complexOptions(), [&](const QStyleOption &option, const QWidget *widget) {
                const auto &complex = static_cast<const QStyleOptionComplex &>(option);
                for (uint part = 1; part <= uint(QStyle::SC_TitleBarLabel); part *= 2) {
                    style().subControlRect(control, &complex, QStyle::SubControl(part), widget);
                }
                style().hitTestComplexControl(control, &complex, QPoint(5, 5), widget);
            });
    }
}

void QuerySweepTest::contents()
{
    for (const auto type : valuesOf<QStyle::ContentsType>()) {
        for (const QSize &size : {QSize(40, 20), QSize(), QSize(0, 0), QSize(1 << 24, 1 << 24)}) {
            askAll(m_material->options(), [&](const QStyleOption &option, const QWidget *widget) {
                style().sizeFromContents(type, &option, size, widget);
            });
        }
    }
}

void QuerySweepTest::standardPictures()
{
    for (const auto picture : valuesOf<QStyle::StandardPixmap>()) {
        style().standardIcon(picture);
        style().standardPixmap(picture, nullptr);
        for (const QWidget *widget : m_material->widgets()) {
            style().standardIcon(picture, m_material->options().front().get(), widget);
        }
        for (const ElementOption &option : m_material->options()) {
            style().standardPixmap(picture, option.get());
        }
    }
}

void QuerySweepTest::itemTexts()
{
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    for (const QString &words : {QString(), text("Text"), text("&Text\nText")}) {
        for (const QRect &rect : SweepMaterial::rects()) {
            for (const bool isEnabled : {true, false}) {
                const PainterState found(painter);
                style().drawItemText(&painter, rect, Qt::AlignCenter, QApplication::palette(),
                                     isEnabled, words, QPalette::ButtonText);
                QCOMPARE(found.differences(painter), QStringList());
            }
        }
    }
}

/// Painting a picture leaves the hints for smooth pictures on, and everything else as it was.
void QuerySweepTest::itemPictures()
{
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, false);
    const QPainter::RenderHints hints = painter.renderHints();
    for (const QPixmap &pixmap : {QPixmap(), picture}) {
        for (const QRect &rect : SweepMaterial::rects()) {
            painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, false);
            const PainterState found(painter);
            style().drawItemPixmap(&painter, rect, Qt::AlignCenter, pixmap);
            QCOMPARE(painter.renderHints(),
                     hints | QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
            QCOMPARE(found.differences(painter), QStringList(text("render hints")));
        }
    }
}

QTEST_MAIN(QuerySweepTest)
#include "QuerySweepTest.moc"
