#include "BenchmarkMain.h"
#include "RealisticTheme.h"

#include <resources/ThemeResources.h>
#include <style/BaseStyle.h>
#include <style/asking/Classes.h>
#include <style/asking/Properties.h>
#include <theme/BaseTheme.h>

#include <QtCore/QFile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>

#include <benchmark/benchmark.h>

using TARN::BaseStyle;
using TARN::Property;
using TARN::ThemeResources;

namespace {

/// What applications derive to handle events.
class DerivedButton : public QPushButton
{
    Q_OBJECT
};

/// What applications derive to keep values.
class DeclaringButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(int level MEMBER m_level)
    Q_PROPERTY(QString unit MEMBER m_unit)

private:
    int m_level = 0;
    QString m_unit;
};

class DynamicButton : public QPushButton
{
public:
    DynamicButton()
    {
        TARN::setProperty(*this, Property::ButtonType, QStringLiteral("Danger"));
        TARN::setProperty(*this, Property::StyleSheetFont, font());
    }
};

void applyRealisticTheme()
{
    static const RealisticTheme theme;
    static const bool applied = [] {
        TARN::BaseTheme(theme.directory()).customize(qApp);
        return true;
    }();
    Q_UNUSED(applied)
}

void getBrush(benchmark::State &state, const QString &name)
{
    applyRealisticTheme();
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(ThemeResources::getBrush(name));
    }
}
BENCHMARK_CAPTURE(getBrush, present, QStringLiteral("ButtonHighlightedUncheckedBackgroundBrush"));
BENCHMARK_CAPTURE(getBrush, absent, QStringLiteral("ButtonHighlightedUncheckedNoSuchBrush"));

void buttonBrushes(benchmark::State &state, bool withWidget)
{
    applyRealisticTheme();
    const QPushButton button;
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_MouseOver;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(BaseStyle::buttonBrushes(&option, withWidget ? &button : nullptr));
    }
}
BENCHMARK_CAPTURE(buttonBrushes, push_button, true);
BENCHMARK_CAPTURE(buttonBrushes, no_widget, false);

void customizeStyleSheet(benchmark::State &state)
{
    applyRealisticTheme();
    QString styleSheet;
    for (const char *name : {"ItemViews", "QComboBox"}) {
        QFile file(QStringLiteral(":/TARN/ThemeLibrary/stylesheets/%1.qss")
                       .arg(QString::fromLatin1(name)));
        if (!file.open(QIODevice::ReadOnly)) {
            state.SkipWithError("no stylesheet");
        }
        styleSheet += QString::fromUtf8(file.readAll());
    }
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(ThemeResources::customizeStyleSheet(styleSheet));
    }
}
BENCHMARK(customizeStyleSheet);

void getBrushKey(benchmark::State &state, const QBrush &brush)
{
    applyRealisticTheme();
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(ThemeResources::getBrushKey(brush));
    }
}

void getBrushKeyPresent(benchmark::State &state)
{
    applyRealisticTheme();
    getBrushKey(state, ThemeResources::getBrush(QStringLiteral("MainBrush")));
}
BENCHMARK(getBrushKeyPresent);

void getBrushKeyAbsent(benchmark::State &state)
{
    getBrushKey(state, QColor(1, 2, 3, 4));
}
BENCHMARK(getBrushKeyAbsent);

/// What looking a key up costs by walking the group, for comparison.
void walkForBrushKey(benchmark::State &state)
{
    applyRealisticTheme();
    const QVariant brush = ThemeResources::getBrush(QStringLiteral("MainBrush"));
    const QVariantMap group = ThemeResources::getThemeVar(QStringLiteral("brushes")).toMap();
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(ThemeResources::getColorOrBrushKey(brush, group));
    }
}
BENCHMARK(walkForBrushKey);

/// What painting asks most often, and mostly in vain.
template <typename Button, Property Asked>
void isSet(benchmark::State &state)
{
    const Button button;
    const QObject *object = &button;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(object);
        benchmark::DoNotOptimize(TARN::isSet(object, Asked));
    }
}
BENCHMARK_TEMPLATE(isSet, QPushButton, Property::Outline);
BENCHMARK_TEMPLATE(isSet, DynamicButton, Property::Outline);
BENCHMARK_TEMPLATE(isSet, DerivedButton, Property::Outline);
BENCHMARK_TEMPLATE(isSet, DeclaringButton, Property::Outline);
BENCHMARK_TEMPLATE(isSet, DynamicButton, Property::ButtonType);
BENCHMARK_TEMPLATE(isSet, QPushButton, Property::Checkable);

/// What asking the toolkit costs, for comparison.
void askForProperty(benchmark::State &state)
{
    const QPushButton button;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(button.property("outline").toBool());
    }
}
BENCHMARK(askForProperty);

void isA(benchmark::State &state, const char *className)
{
    const QPushButton button;
    const QObject *object = &button;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(object);
        benchmark::DoNotOptimize(TARN::isA(object, className));
    }
}
BENCHMARK_CAPTURE(isA, it_is, "QPushButton");
BENCHMARK_CAPTURE(isA, it_is_not, "QTabBar");

void castToTabBar(benchmark::State &state)
{
    const QPushButton button;
    const QObject *object = &button;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(object);
        benchmark::DoNotOptimize(qobject_cast<const QTabBar *>(object));
    }
}
BENCHMARK(castToTabBar);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks(argc, argv);
}

#include "LookUpBenchmark.moc"
