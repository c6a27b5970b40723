#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <support/NamedWidget.h>
#include <support/PaletteChanges.h>
#include <support/Text.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;

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
