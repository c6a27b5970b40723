#include <style/BaseStyle.h>

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <functional>
#include <support/Text.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

namespace {

/// Shows whatever colour it is told at the moment, as one that tells the time does.
class ClockEngine : public QIconEngine
{
public:
    explicit ClockEngine(const QColor *color)
        : m_color(color)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override
    {
        painter->fillRect(rect, *m_color);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new ClockEngine(*this); }

private:
    const QColor *m_color;
};

using Make = std::function<QWidget *(const QIcon &icon)>;

template <typename Button>
QWidget *makeButton(const QIcon &icon)
{
    auto *button = new Button;
    button->setIcon(icon);
    return button;
}

QWidget *makeMenu(const QIcon &icon)
{
    auto *menu = new QMenu;
    menu->addAction(icon, text("Entry"));
    return menu;
}

QWidget *makeTabBar(const QIcon &icon)
{
    auto *tabBar = new QTabBar;
    tabBar->addTab(icon, text("Tab"));
    return tabBar;
}

QWidget *makeComboBox(const QIcon &icon)
{
    auto *comboBox = new QComboBox;
    comboBox->addItem(icon, text("Entry"));
    return comboBox;
}

QWidget *makeList(const QIcon &icon)
{
    auto *list = new QListWidget;
    list->addItem(new QListWidgetItem(icon, text("Item")));
    return list;
}

bool shows(QWidget &widget, const QColor &color)
{
    return containsColor(widget.grab().toImage(), color);
}

} // namespace

Q_DECLARE_METATYPE(Make)

/// Icons whose engine shows something else later, on everything that tints its icon.
class ChangingIconPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isPaintedAsItIsNow_data()
    {
        QTest::addColumn<Make>("make");
        QTest::newRow("push button") << Make(makeButton<QPushButton>);
        QTest::newRow("command link") << Make(makeButton<QCommandLinkButton>);
        QTest::newRow("tool button") << Make(makeButton<QToolButton>);
        QTest::newRow("check box") << Make(makeButton<QCheckBox>);
        QTest::newRow("menu") << Make(makeMenu);
        QTest::newRow("tab bar") << Make(makeTabBar);
        QTest::newRow("combo box") << Make(makeComboBox);
        QTest::newRow("list") << Make(makeList);
    }

    void isPaintedAsItIsNow()
    {
        QFETCH(Make, make);
        const PaintTheme theme;
        QApplication::setStyle(new TARN::BaseStyle);
        QColor shown = Qt::magenta;
        const QScopedPointer<QWidget> widget(make(QIcon(new ClockEngine(&shown))));
        for (int round = 0; round < 3; ++round) {
            for (const QColor &color : {QColor(250, 3, 7), QColor(3, 7, 250)}) {
                const QColor former = shown;
                shown = color;
                QVERIFY(shows(*widget, shown));
                QVERIFY(!shows(*widget, former));
            }
        }
    }

    void iconThatIsSetAgainIsPaintedAsItIsNow()
    {
        const PaintTheme theme;
        QApplication::setStyle(new TARN::BaseStyle);
        QIcon icon;
        QPushButton button;
        for (const QColor &color : {QColor(250, 3, 7), QColor(3, 7, 250)}) {
            QPixmap pixmap(16, 16);
            pixmap.fill(color);
            icon.addPixmap(pixmap);
            button.setIcon(icon);
            QVERIFY(shows(button, color));
        }
    }
};

QTEST_MAIN(ChangingIconPaintTest)
#include "ChangingIconPaintTest.moc"
