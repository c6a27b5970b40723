#include <style/BaseStyle.h>
#include <style/ComboBoxDefaultItemDelegate.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <support/PaletteChanges.h>
#include <support/Text.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;
using TARN::ComboBoxDefaultItemDelegate;

namespace {

void setProperties(QObject &object, const QString &names)
{
    for (const QString &name : names.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        object.setProperty(name.toLatin1().constData(), true);
    }
}

/// Tells that it is a class of which only the name is known.
class NamedWidget : public QWidget
{
public:
    explicit NamedWidget(const QByteArray &className)
        : m_className(className)
    {
    }

    void *qt_metacast(const char *className) override
    {
        return m_className == className ? this : QWidget::qt_metacast(className);
    }

private:
    QByteArray m_className;
};

} // namespace

/// What polishing does to the toolkit's own widgets.
class PolishTest : public QObject
{
    Q_OBJECT

private:
    UniqueTheme m_theme;
    BaseStyle m_style;

    QString disabledText(const QWidget &widget) const
    {
        return m_theme.nameOf(widget.palette().brush(QPalette::Disabled, QPalette::WindowText));
    }

private Q_SLOTS:
    void init()
    {
        for (const char *name : {"appSmallTabSize", "appBaseTabSize", "appLargeTabSize",
                                 "smallTabSize", "baseTabSize", "largeTabSize"}) {
            qApp->setProperty(name, QVariant());
        }
    }

    void progressBarTextReadsUpwards()
    {
        QProgressBar bar;
        bar.setTextDirection(QProgressBar::TopToBottom);
        m_style.polish(&bar);
        QCOMPARE(bar.textDirection(), QProgressBar::BottomToTop);
    }

    void labelTextWhenDisabled()
    {
        QLabel label;
        const QPalette before = label.palette();
        m_style.polish(&label);
        QCOMPARE(disabledText(label), text("ForegroundBrushDisabled"));
        QCOMPARE(changedRoles(QPalette::Disabled, before, label.palette()),
                 QList<QPalette::ColorRole>{QPalette::WindowText});
        QVERIFY(changedRoles(QPalette::Active, before, label.palette()).isEmpty());
        QVERIFY(changedRoles(QPalette::Inactive, before, label.palette()).isEmpty());

        QCheckBox other;
        m_style.polish(&other);
        QVERIFY(disabledText(other) != text("ForegroundBrushDisabled"));
    }

    void labelKnownByNameOnly()
    {
        NamedWidget label("QLabel");
        m_style.polish(&label);
        QCOMPARE(disabledText(label), text("ForegroundBrushDisabled"));
    }

    void tabBarsAndGroupBoxesHearHovering()
    {
        QTabBar tabBar;
        QGroupBox groupBox;
        NamedWidget likeGroupBox("QGroupBox");
        QFrame frame;
        for (QWidget *widget :
             {static_cast<QWidget *>(&tabBar), static_cast<QWidget *>(&groupBox),
              static_cast<QWidget *>(&likeGroupBox), static_cast<QWidget *>(&frame)}) {
            widget->setAttribute(Qt::WA_Hover, false);
            m_style.polish(widget);
            QCOMPARE(widget->testAttribute(Qt::WA_Hover), widget != &frame);
            m_style.unpolish(widget);
            QVERIFY(!widget->testAttribute(Qt::WA_Hover));
        }
    }

    void unpolishTakesNothingElseBack()
    {
        QTabBar tabBar;
        QProgressBar bar;
        QStatusBar statusBar;
        for (QWidget *widget : {static_cast<QWidget *>(&tabBar), static_cast<QWidget *>(&bar),
                                static_cast<QWidget *>(&statusBar)}) {
            m_style.polish(widget);
            m_style.unpolish(widget);
        }
        QCOMPARE(UniqueTheme::sizeOf(tabBar.font()), text("medium"));
        QVERIFY(tabBar.property("_q_styleSheetWidgetFont").isValid());
        QCOMPARE(bar.textDirection(), QProgressBar::BottomToTop);
        QCOMPARE(statusBar.minimumHeight(), 34);

        QWidget hovered;
        hovered.setAttribute(Qt::WA_Hover);
        m_style.unpolish(&hovered);
        QVERIFY(hovered.testAttribute(Qt::WA_Hover));
    }

    void tabFont_data()
    {
        QTest::addColumn<QString>("application");
        QTest::addColumn<QString>("widget");
        QTest::addColumn<QString>("expected");
        const char *const sizes[][3] = {
            {"", "", "medium"},
            {"appSmallTabSize", "", "small"},
            {"appBaseTabSize", "", "base"},
            {"appLargeTabSize", "", "large"},
            {"appSmallTabSize appBaseTabSize", "", "small"},
            {"appSmallTabSize appBaseTabSize appLargeTabSize", "", "small"},
            {"appBaseTabSize appLargeTabSize", "", "base"},
            {"", "smallTabSize", "small"},
            {"", "baseTabSize", "base"},
            {"", "largeTabSize", "large"},
            {"", "smallTabSize baseTabSize", "small"},
            {"", "smallTabSize largeTabSize", "large"},
            {"", "baseTabSize largeTabSize", "large"},
            {"", "smallTabSize baseTabSize largeTabSize", "large"},
            {"appLargeTabSize", "smallTabSize", "small"},
            {"appLargeTabSize", "baseTabSize", "base"},
            {"appSmallTabSize", "largeTabSize", "large"},
            {"smallTabSize largeTabSize", "appSmallTabSize appLargeTabSize", "medium"},
        };
        for (const auto &row : sizes) {
            QTest::addRow("application: %s, widget: %s", row[0], row[1])
                << text(row[0]) << text(row[1]) << text(row[2]);
        }
    }

    void tabFont()
    {
        QFETCH(QString, application);
        QFETCH(QString, widget);
        QFETCH(QString, expected);
        setProperties(*qApp, application);
        QTabWidget tabWidget;
        QTabBar tabBar;
        NamedWidget likeTabBar("QTabWidget");
        for (QWidget *tabs : {static_cast<QWidget *>(&tabWidget), static_cast<QWidget *>(&tabBar),
                              static_cast<QWidget *>(&likeTabBar)}) {
            setProperties(*tabs, widget);
            m_style.polish(tabs);
            QCOMPARE(UniqueTheme::sizeOf(tabs->font()), expected);
            const QVariant font = tabs->property("_q_styleSheetWidgetFont");
            QCOMPARE(font.userType(), int(QMetaType::QFont));
            QCOMPARE(UniqueTheme::sizeOf(font.value<QFont>()), expected);
        }
    }

    void tabSizesSetToFalse()
    {
        qApp->setProperty("appSmallTabSize", false);
        qApp->setProperty("appLargeTabSize", true);
        QTabBar tabBar;
        tabBar.setProperty("smallTabSize", false);
        m_style.polish(&tabBar);
        QCOMPARE(UniqueTheme::sizeOf(tabBar.font()), text("large"));
    }

    void statusBarHeight()
    {
        QStatusBar bar;
        m_style.polish(&bar);
        QCOMPARE(bar.minimumHeight(), 34);
        QToolBar other;
        const int before = other.minimumHeight();
        m_style.polish(&other);
        QCOMPARE(other.minimumHeight(), before);
    }

    void scrollAreaBackground()
    {
        QScrollArea area;
        QTextEdit edit;
        const QPalette::ColorRole before = edit.viewport()->backgroundRole();
        QVERIFY(area.viewport()->backgroundRole() != QPalette::Light);
        m_style.polish(&area);
        m_style.polish(&edit);
        QCOMPARE(area.viewport()->backgroundRole(), QPalette::Light);
        QCOMPARE(edit.viewport()->backgroundRole(), before);
    }

    void windowsHaveStyledBackgrounds()
    {
        QMainWindow window;
        QDockWidget docked;
        window.addDockWidget(Qt::LeftDockWidgetArea, &docked);
        QDockWidget floating;
        QMainWindow inner(&window);
        inner.setWindowFlags(Qt::Widget);
        QDialog dialog;
        for (QWidget *widget : {static_cast<QWidget *>(&window), static_cast<QWidget *>(&docked),
                                static_cast<QWidget *>(&floating), static_cast<QWidget *>(&inner),
                                static_cast<QWidget *>(&dialog)}) {
            widget->setAttribute(Qt::WA_StyledBackground, false);
            m_style.polish(widget);
        }
        QVERIFY(window.testAttribute(Qt::WA_StyledBackground));
        QVERIFY(docked.testAttribute(Qt::WA_StyledBackground));
        QVERIFY(floating.testAttribute(Qt::WA_StyledBackground));
        QVERIFY(!inner.testAttribute(Qt::WA_StyledBackground));
        QVERIFY(!dialog.testAttribute(Qt::WA_StyledBackground));
    }

    void comboBoxDelegate()
    {
        QComboBox combo;
        combo.setStyle(&m_style);
        QVERIFY(combo.itemDelegate()->inherits("QComboBoxDelegate"));
        m_style.polish(&combo);
        auto *delegate = qobject_cast<ComboBoxDefaultItemDelegate *>(combo.itemDelegate());
        QVERIFY(delegate);
        QCOMPARE(delegate->parent(), &m_style);
        QCOMPARE(delegate->comboBox(), &combo);
        QCOMPARE(combo.view()->itemDelegate(), delegate);

        m_style.polish(&combo);
        QCOMPARE(combo.itemDelegate(), delegate);
    }

    void comboBoxKeepsItsOwnDelegate()
    {
        QComboBox combo;
        auto *delegate = new QStyledItemDelegate(&combo);
        combo.setItemDelegate(delegate);
        m_style.polish(&combo);
        QCOMPARE(combo.itemDelegate(), delegate);

        QComboBox other;
        auto *ownLine = new ComboBoxDefaultItemDelegate(&other, &other);
        other.setItemDelegate(ownLine);
        m_style.polish(&other);
        QCOMPARE(other.itemDelegate(), ownLine);
    }

    void shadowsAreAllowed()
    {
        QWidget plain(nullptr, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
        m_style.polish(&plain);
        QCOMPARE(plain.windowFlags(), Qt::Popup | Qt::FramelessWindowHint);

        QWidget child(&plain);
        child.setWindowFlag(Qt::NoDropShadowWindowHint);
        m_style.polish(&child);
        QVERIFY(!child.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    }

    void shownWindowStaysShown()
    {
        QWidget window;
        window.show();
        m_style.polish(&window);
        QVERIFY(window.isVisible());
    }

    void toolBox()
    {
        QToolBox toolBox;
        toolBox.addItem(new QWidget, text("First"));
        toolBox.layout()->setContentsMargins(1, 2, 3, 4);
        toolBox.layout()->setSpacing(5);
        auto *button = toolBox.findChild<QAbstractButton *>();
        QVERIFY(button->inherits("QToolBoxButton"));
        m_style.polish(&toolBox);
        m_style.polish(button);
        QCOMPARE(toolBox.layout()->contentsMargins(), QMargins());
        QCOMPARE(toolBox.layout()->spacing(), 0);
        QCOMPARE(button->minimumHeight(), 42);

        NamedWidget withoutLayout("QToolBox");
        m_style.polish(&withoutLayout);
        QVERIFY(!withoutLayout.layout());
    }

    void layoutsOfOtherWidgetsStay()
    {
        QFrame frame;
        QHBoxLayout layout(&frame);
        layout.setContentsMargins(1, 2, 3, 4);
        layout.setSpacing(5);
        m_style.polish(&frame);
        QCOMPARE(layout.contentsMargins(), QMargins(1, 2, 3, 4));
        QCOMPARE(layout.spacing(), 5);
        QPushButton button;
        m_style.polish(&button);
        QCOMPARE(button.minimumHeight(), 0);
    }

    // The base style is polished with as well, and first: what both set is the theme's.
    void baseStylePolishesToo()
    {
        QPushButton button;
        button.setAttribute(Qt::WA_Hover, false);
        m_style.polish(&button);
        QVERIFY(button.testAttribute(Qt::WA_Hover));
        m_style.unpolish(&button);
        QVERIFY(!button.testAttribute(Qt::WA_Hover));
    }

    void propertiesCountWhenPolishedAgain()
    {
        QTabBar tabBar;
        m_style.polish(&tabBar);
        tabBar.setProperty("smallTabSize", true);
        QCOMPARE(UniqueTheme::sizeOf(tabBar.font()), text("medium"));
        m_style.polish(&tabBar);
        QCOMPARE(UniqueTheme::sizeOf(tabBar.font()), text("small"));
    }

    void applicationIsLeftToTheBaseStyle()
    {
        const QList<QByteArray> before = qApp->dynamicPropertyNames();
        const QPalette palette = QApplication::palette();
        m_style.polish(qApp);
        m_style.unpolish(qApp);
        QCOMPARE(qApp->dynamicPropertyNames(), before);
        QCOMPARE(QApplication::palette(), palette);
    }
};

QTEST_MAIN(PolishTest)
#include "PolishTest.moc"
