#include <common_utils/Contrast.h>
#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

#include <support/Text.h>

using TARN::BaseTheme;
using TARN::Helpers::contrastRatio;

namespace {

/// Returns a palette of dark text on light grounds, as a program may have chosen it for itself.
QPalette lightPalette()
{
    QPalette palette(QColor(239, 240, 241));
    const QColor text(35, 38, 41);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Window, QColor(239, 240, 241));
    palette.setColor(QPalette::Button, QColor(239, 240, 241));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0, 90, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QImage pictureOf(QWidget &widget)
{
    widget.ensurePolished();
    widget.resize(widget.sizeHint().expandedTo(QSize(120, 30)));
    return widget.grab().toImage();
}

/// Returns the colour that most of \a picture has.
QColor ground(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return QColor(most.key());
}

/// Returns the best contrast that anything in \a picture has with its ground.
double bestContrast(const QImage &picture)
{
    const QColor bottom = ground(picture);
    double best = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            best = qMax(best, contrastRatio(QColor(picture.pixel(x, y)), bottom));
        }
    }
    return best;
}

using MakeWidget = QWidget *(*)();

template <typename Widget>
QWidget *made()
{
    return new Widget(text("Text"));
}

QWidget *madeComboBox()
{
    auto *combo = new QComboBox;
    combo->addItem(text("Text"));
    return combo;
}

QWidget *madeCheckedButton()
{
    auto *button = new QPushButton(text("Text"));
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

QWidget *madeDefaultButton()
{
    auto *button = new QPushButton(text("Text"));
    button->setDefault(true);
    return button;
}

QWidget *madeToolButton()
{
    auto *button = new QToolButton;
    button->setText(text("Text"));
    return button;
}

QWidget *madeMenuBar()
{
    auto *bar = new QMenuBar;
    bar->addMenu(text("Text"));
    return bar;
}

QWidget *madeTabBar()
{
    auto *bar = new QTabBar;
    bar->addTab(text("Text"));
    return bar;
}

QWidget *madeProgressBar()
{
    auto *bar = new QProgressBar;
    bar->setValue(1);
    return bar;
}

QWidget *madeList()
{
    auto *list = new QListWidget;
    list->addItems({text("Text"), text("Text"), text("Text")});
    return list;
}

} // namespace

Q_DECLARE_METATYPE(MakeWidget)

/// Widgets whose palette a program has chosen, in the complete mode.
class ProgramColorsTest : public QObject
{
    Q_OBJECT

private:
    void addWidgets()
    {
        QTest::addColumn<MakeWidget>("make");
        QTest::newRow("push button") << MakeWidget(made<QPushButton>);
        QTest::newRow("checked button") << MakeWidget(madeCheckedButton);
        QTest::newRow("default button") << MakeWidget(madeDefaultButton);
        QTest::newRow("tool button") << MakeWidget(madeToolButton);
        QTest::newRow("check box") << MakeWidget(made<QCheckBox>);
        QTest::newRow("radio button") << MakeWidget(made<QRadioButton>);
        QTest::newRow("label") << MakeWidget(made<QLabel>);
        QTest::newRow("line edit") << MakeWidget(made<QLineEdit>);
        QTest::newRow("combo box") << MakeWidget(madeComboBox);
        QTest::newRow("menu bar") << MakeWidget(madeMenuBar);
        QTest::newRow("tab bar") << MakeWidget(madeTabBar);
        QTest::newRow("progress bar") << MakeWidget(madeProgressBar);
        QTest::newRow("list") << MakeWidget(madeList);
    }

private Q_SLOTS:
    void initTestCase()
    {
        qApp->setProperty("appCompleteTheming", true);
        BaseTheme(text(MOX_SHIPPED_THEMES) + text("/Dark")).customize(qApp);
    }

    void isLegibleInThePaletteOfTheApplication_data() { addWidgets(); }

    /// Each text was light on what became light.
    void isLegibleInThePaletteOfTheApplication()
    {
        QFETCH(MakeWidget, make);
        QApplication::setPalette(lightPalette());
        const std::unique_ptr<QWidget> widget(make());
        const QImage picture = pictureOf(*widget);
        QVERIFY2(bestContrast(picture) >= 4.5, qPrintable(ground(picture).name()));
    }

    void isLegibleInAPaletteOfItsOwn_data() { addWidgets(); }

    void isLegibleInAPaletteOfItsOwn()
    {
        QFETCH(MakeWidget, make);
        const std::unique_ptr<QWidget> widget(make());
        widget->setPalette(lightPalette());
        widget->setAutoFillBackground(true);
        const QImage picture = pictureOf(*widget);
        QVERIFY2(bestContrast(picture) >= 4.5, qPrintable(ground(picture).name()));
    }

    void isTheThemesWithoutAPaletteOfItsOwn_data() { addWidgets(); }

    /// What is the program's own for a while leaves nothing behind.
    void isTheThemesWithoutAPaletteOfItsOwn()
    {
        QFETCH(MakeWidget, make);
        const std::unique_ptr<QWidget> widget(make());
        const QImage before = pictureOf(*widget);
        const QPalette own = widget->palette();
        widget->setPalette(lightPalette());
        QVERIFY(pictureOf(*widget) != before);
        widget->setPalette(own);
        QCOMPARE(pictureOf(*widget), before);
    }

    void aFaceIsThatOfTheProgram()
    {
        QPushButton button;
        QPalette palette;
        palette.setColor(QPalette::Button, QColor(120, 30, 90));
        button.setPalette(palette);
        QCOMPARE(ground(pictureOf(button)), QColor(120, 30, 90));
        QLineEdit edit;
        palette = QPalette();
        palette.setColor(QPalette::Base, QColor(255, 240, 180));
        edit.setPalette(palette);
        QCOMPARE(ground(pictureOf(edit)), QColor(255, 240, 180));
    }

    /// A change of the grounds of inputs is none of a button's.
    void otherRolesChangeNothing()
    {
        QPushButton button(text("Text"));
        const QImage before = pictureOf(button);
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(255, 240, 180));
        palette.setColor(QPalette::ToolTipBase, QColor(255, 240, 180));
        button.setPalette(palette);
        QCOMPARE(pictureOf(button), before);
    }

    void byDefaultTheThemeDecides()
    {
        qApp->setProperty("appCompleteTheming", QVariant());
        qApp->setProperty("appLiveThemeSwitch", true);
        BaseTheme(text(MOX_SHIPPED_THEMES) + text("/Dark")).customize(qApp);
        QPushButton button;
        const QColor face = ground(pictureOf(button));
        QPalette palette;
        palette.setColor(QPalette::Button, QColor(120, 30, 90));
        button.setPalette(palette);
        QCOMPARE(ground(pictureOf(button)), face);
    }
};

QTEST_MAIN(ProgramColorsTest)
#include "ProgramColorsTest.moc"
