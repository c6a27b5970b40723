#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/themes/PaintTheme.h>

namespace {

/// A proxy that keeps the palette by which a text is drawn.
class PaletteRecorder : public QProxyStyle
{
public:
    PaletteRecorder()
        : QProxyStyle(new TARN::BaseStyle)
    {
    }

    void drawItemText(QPainter * /*painter*/, const QRect & /*rect*/, int /*flags*/,
                      const QPalette &palette, bool /*enabled*/, const QString & /*text*/,
                      QPalette::ColorRole /*role*/) const override
    {
        m_palette = palette;
    }

    /// Returns the palette by which the label of a button of \a palette is drawn.
    QPalette labelPalette(const QPalette &palette) const
    {
        QStyleOptionButton option;
        option.rect = QRect(0, 0, 80, 26);
        option.state = QStyle::State_Enabled;
        option.palette = palette;
        option.text = text("Text");
        QImage picture(80, 26, QImage::Format_RGB32);
        QPainter painter(&picture);
        drawControl(CE_PushButtonLabel, &option, &painter, nullptr);
        return m_palette;
    }

private:
    mutable QPalette m_palette;
};

} // namespace

/// Palettes that are given a brush for one label, of which many are kept.
class LabelPaletteTest : public QObject
{
    Q_OBJECT

private:
    PaintTheme m_theme;
    PaletteRecorder m_recorder;

private Q_SLOTS:
    /// Palettes of one content share it, whatever group is the current one.
    void currentGroupIsKept()
    {
        const QBrush foreground = m_theme.brush(text("ButtonUncheckedForegroundBrush"));
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QPalette palette(Qt::red);
            for (const auto current : {QPalette::Active, QPalette::Inactive, group}) {
                palette.setCurrentColorGroup(current);
                const QPalette label = m_recorder.labelPalette(palette);
                QCOMPARE(label.currentColorGroup(), current);
                for (const auto other :
                     {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                    QCOMPARE(label.brush(other, QPalette::ButtonText),
                             other == current ? foreground
                                              : palette.brush(other, QPalette::ButtonText));
                }
            }
        }
    }

    /// What an application has set in a palette is told by its mask alone.
    void whatIsSetStaysSet()
    {
        QPalette palette(Qt::red);
        const uint all = palette.resolve();
        for (const uint mask : {all, 0U, 1U << QPalette::Link, all}) {
            palette.resolve(mask);
            QCOMPARE(m_recorder.labelPalette(palette).resolve(), mask | 1U << QPalette::ButtonText);
        }
    }
};

QTEST_MAIN(LabelPaletteTest)
#include "LabelPaletteTest.moc"
