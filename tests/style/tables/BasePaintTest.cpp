#include <catalogue/Elements.h>
#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <memory>
#include <support/TestedMode.h>
#include <support/Text.h>
#include <vector>

namespace {

/// What a base style was asked to paint.
struct BaseCall
{
    char kind; ///< 'p' for primitives, 'c' for controls, 'x' for complex controls
    int element;
    const QStyleOption *option;
    const QPainter *painter;
    const QWidget *widget;

    bool operator==(const BaseCall &other) const
    {
        return kind == other.kind && element == other.element && option == other.option &&
               painter == other.painter && widget == other.widget;
    }
};

/// A base style that paints nothing.
class RecordingStyle : public QProxyStyle
{
public:
    explicit RecordingStyle(std::vector<BaseCall> &calls)
        : QProxyStyle(QStringLiteral("fusion"))
        , m_calls(calls)
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        m_calls.push_back({'p', int(element), option, painter, widget});
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        m_calls.push_back({'c', int(element), option, painter, widget});
    }
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        m_calls.push_back({'x', int(control), option, painter, widget});
    }

private:
    std::vector<BaseCall> &m_calls;
};

/// A base style that remembers the palette with which it last drew a text.
class TextStyle : public QProxyStyle
{
public:
    TextStyle()
        : QProxyStyle(QStringLiteral("fusion"))
    {
    }

    void drawItemText(QPainter * /*painter*/, const QRect & /*rect*/, int /*flags*/,
                      const QPalette &palette, bool /*enabled*/, const QString & /*text*/,
                      QPalette::ColorRole /*role*/) const override
    {
        ++m_count;
        m_palette = palette;
    }

    int count() const { return m_count; }
    const QPalette &palette() const { return m_palette; }

private:
    mutable int m_count = 0;
    mutable QPalette m_palette;
};

} // namespace

/// What the style leaves to its base style.
class BasePaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A base style that an application sets draws every text, of disabled ones in one colour for
    /// all groups.
    void anotherBaseStyleDrawsTexts()
    {
        TARN::BaseStyle style;
        auto *base = new TextStyle;
        style.setBaseStyle(base);
        QPalette palette;
        palette.setBrush(QPalette::All, QPalette::Text, Qt::black);
        palette.setBrush(QPalette::Disabled, QPalette::Text, Qt::gray);
        QImage picture(100, 20, QImage::Format_RGB32);
        QPainter painter(&picture);
        const auto draw = [&](bool enabled) {
            style.drawItemText(&painter, picture.rect(), Qt::AlignCenter, palette, enabled,
                               text("Text"), QPalette::Text);
        };
        draw(true);
        QCOMPARE(base->count(), 1);
        QCOMPARE(base->palette(), palette);
        draw(false);
        QCOMPARE(base->count(), 2);
        for (const QPalette::ColorGroup group :
             {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(base->palette().color(group, QPalette::Text), QColor(Qt::gray));
        }
    }

    void init();

    void otherElementsReachTheBaseStyle_data();
    void otherElementsReachTheBaseStyle();
    void wrongOptionsReachTheBaseStyle_data();
    void wrongOptionsReachTheBaseStyle();
    void withoutOptionOrPainterNothingIsPainted();

private:
    void paint(char kind, int element, const QStyleOptionComplex *option, QPainter *painter);

    std::vector<BaseCall> m_calls;
    std::unique_ptr<TARN::BaseStyle> m_style;
    QWidget m_widget;
};

void BasePaintTest::init()
{
    enterTestedMode();
    m_style = std::make_unique<TARN::BaseStyle>();
    m_style->setBaseStyle(new RecordingStyle(m_calls));
    m_calls.clear();
}

void BasePaintTest::paint(char kind, int element, const QStyleOptionComplex *option,
                          QPainter *painter)
{
    if (kind == 'p') {
        m_style->drawPrimitive(QStyle::PrimitiveElement(element), option, painter, &m_widget);
    } else if (kind == 'c') {
        m_style->drawControl(QStyle::ControlElement(element), option, painter, &m_widget);
    } else {
        m_style->drawComplexControl(QStyle::ComplexControl(element), option, painter, &m_widget);
    }
}

void BasePaintTest::otherElementsReachTheBaseStyle_data()
{
    QTest::addColumn<char>("kind");
    QTest::addColumn<int>("element");
    const auto addUnpainted = [](char kind, const QVector<TARN::StyleElement> &table) {
        for (const TARN::StyleElement &row : table) {
            if (!(testsCompleteMode() ? row.isPaintedInCompleteMode : row.isPainted)) {
                QTest::newRow(row.name) << kind << row.element;
            }
        }
        for (const int beyond : {table.size(), table.size() + 1, 1000, int(0xf0000000)}) {
            QTest::addRow("%c %d", kind, beyond) << kind << beyond;
        }
    };
    addUnpainted('p', TARN::Catalogue::primitives());
    addUnpainted('c', TARN::Catalogue::controls());
    addUnpainted('x', TARN::Catalogue::complexControls());
    if (!testsCompleteMode()) {
        QTest::newRow("branch") << 'p' << int(QStyle::PE_IndicatorBranch);
        QTest::newRow("49") << 'p' << 49;
        QTest::newRow("group box") << 'x' << int(QStyle::CC_GroupBox);
        QTest::newRow("dial") << 'x' << int(QStyle::CC_Dial);
    }
}

void BasePaintTest::otherElementsReachTheBaseStyle()
{
    QFETCH(char, kind);
    QFETCH(int, element);
    QImage picture(20, 20, QImage::Format_RGB32);
    QPainter painter(&picture);
    QStyleOptionComplex option;
    option.rect = picture.rect();
    paint(kind, element, &option, &painter);
    QCOMPARE(m_calls.size(), std::size_t(1));
    QVERIFY(m_calls.front() == (BaseCall{kind, element, &option, &painter, &m_widget}));
}

void BasePaintTest::wrongOptionsReachTheBaseStyle_data()
{
    QTest::addColumn<char>("kind");
    QTest::addColumn<int>("element");
    QTest::newRow("check box") << 'p' << int(QStyle::PE_IndicatorCheckBox);
    QTest::newRow("item panel") << 'p' << int(QStyle::PE_PanelItemViewItem);
    QTest::newRow("focus") << 'p' << int(QStyle::PE_FrameFocusRect);
    QTest::newRow("line edit") << 'p' << int(QStyle::PE_PanelLineEdit);
    QTest::newRow("push button") << 'c' << int(QStyle::CE_PushButton);
    QTest::newRow("tab shape") << 'c' << int(QStyle::CE_TabBarTabShape);
    QTest::newRow("tab label") << 'c' << int(QStyle::CE_TabBarTabLabel);
    QTest::newRow("progress contents") << 'c' << int(QStyle::CE_ProgressBarContents);
    QTest::newRow("menu item") << 'c' << int(QStyle::CE_MenuItem);
    QTest::newRow("tool bar without its widget") << 'c' << int(QStyle::CE_ToolBar);
    QTest::newRow("slider") << 'x' << int(QStyle::CC_Slider);
    QTest::newRow("spin box") << 'x' << int(QStyle::CC_SpinBox);
    QTest::newRow("title bar") << 'x' << int(QStyle::CC_TitleBar);
}

void BasePaintTest::wrongOptionsReachTheBaseStyle()
{
    otherElementsReachTheBaseStyle();
}

void BasePaintTest::withoutOptionOrPainterNothingIsPainted()
{
    QImage picture(20, 20, QImage::Format_RGB32);
    QPainter painter(&picture);
    const QStyleOptionComplex option;
    for (const char kind : {'p', 'c', 'x'}) {
        for (int element = 0; element < 60; ++element) {
            paint(kind, element, nullptr, &painter);
            paint(kind, element, &option, nullptr);
        }
    }
    QVERIFY(m_calls.empty());
}

QTEST_MAIN(BasePaintTest)
#include "BasePaintTest.moc"
