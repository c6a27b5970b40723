#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <support/NamedWidget.h>
#include <support/PaletteChanges.h>
#include <support/Text.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;

namespace {

/// Tells whether nothing of a lookalike differs from what polishing makes of any widget.
bool isLikeAnyOther(const QWidget &lookalike, const QWidget &other)
{
    return lookalike.dynamicPropertyNames() == other.dynamicPropertyNames() &&
           lookalike.palette() == other.palette() && lookalike.font() == other.font() &&
           lookalike.testAttribute(Qt::WA_Hover) == other.testAttribute(Qt::WA_Hover) &&
           lookalike.minimumSize() == other.minimumSize();
}

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

    void itemViewKnownByNameOnly()
    {
        NamedWidget view("QAbstractItemView");
        m_style.polish(&view);
        QCOMPARE(m_theme.nameOf(view.palette().brush(QPalette::Active, QPalette::Base)),
                 text("ItemViewBackgroundBrush"));
        QCOMPARE(m_theme.nameOf(view.palette().brush(QPalette::Disabled, QPalette::Base)),
                 text("ItemViewBackgroundBrushDisabled"));
        QVERIFY(view.hasMouseTracking());
        for (const char *name :
             {"highlightItemsOnMouseHover", "drawItemsSeparators", "hideFocusRect"}) {
            QVERIFY2(view.property(name).toBool(), name);
        }
    }

    void tabBarKnownByNameOnly()
    {
        NamedWidget tabBar("QTabBar");
        m_style.polish(&tabBar);
        QVERIFY(tabBar.testAttribute(Qt::WA_Hover));
        QCOMPARE(UniqueTheme::sizeOf(tabBar.font()), text("medium"));
        m_style.unpolish(&tabBar);
        QVERIFY(!tabBar.testAttribute(Qt::WA_Hover));
    }

    void windowsKnownByNameOnly()
    {
        QWidget parent;
        for (const char *className : {"QMainWindow", "QDockWidget"}) {
            const bool isDock = qstrcmp(className, "QDockWidget") == 0;
            for (QWidget *owner : {static_cast<QWidget *>(nullptr), &parent}) {
                NamedWidget window(className);
                window.setParent(owner);
                m_style.polish(&window);
                QCOMPARE(window.testAttribute(Qt::WA_StyledBackground), isDock || !owner);
            }
        }
    }

    void viewportOfAScrollAreaKnownByNameOnly()
    {
        Named<QAbstractScrollArea> area("QScrollArea");
        QVERIFY(area.viewport()->backgroundRole() != QPalette::Light);
        m_style.polish(&area);
        QCOMPARE(area.viewport()->backgroundRole(), QPalette::Light);
    }

    // What only the real ones have can't be given to them.
    void lookalikesWithoutTheMeansAreLeft_data()
    {
        QTest::addColumn<QByteArray>("className");
        for (const char *name : {"QProgressBar", "QScrollArea", "QComboBox"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }

    void lookalikesWithoutTheMeansAreLeft()
    {
        QFETCH(QByteArray, className);
        NamedWidget lookalike(className);
        QWidget other;
        m_style.polish(&lookalike);
        m_style.polish(&other);
        QVERIFY(isLikeAnyOther(lookalike, other));
    }

    void whatIsSaidAddsToWhatIs()
    {
        Named<QListView> view("QTabBar");
        m_style.polish(&view);
        QVERIFY(view.property("drawChildIndicatorInListView").toBool());
        QCOMPARE(m_theme.nameOf(view.palette().brush(QPalette::Active, QPalette::Base)),
                 text("ItemViewBackgroundBrush"));
        QVERIFY(view.testAttribute(Qt::WA_Hover));
        QCOMPARE(UniqueTheme::sizeOf(view.font()), text("medium"));

        Named<QProgressBar> bar("QStatusBar");
        m_style.polish(&bar);
        QCOMPARE(bar.textDirection(), QProgressBar::BottomToTop);
        QCOMPARE(bar.minimumHeight(), 34);
    }

    // Rules of widgets that are of a class don't ask what these say; rules of widgets that say so
    // do.
    void whatIsDeniedStaysTrue()
    {
        Nameless<QTabBar> tabBar;
        tabBar.setAttribute(Qt::WA_Hover, false);
        m_style.polish(&tabBar);
        QVERIFY(tabBar.testAttribute(Qt::WA_Hover));
        QVERIFY(!tabBar.property("_q_styleSheetWidgetFont").isValid());

        Nameless<QProgressBar> bar;
        m_style.polish(&bar);
        QCOMPARE(bar.textDirection(), QProgressBar::BottomToTop);

        Nameless<QTreeView> view;
        m_style.polish(&view);
        QVERIFY(view.property("highlightItemsOnMouseHover").toBool());
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
