#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>

#include <support/Components.h>
#include <support/Text.h>
#include <support/themes/UniqueTheme.h>

using namespace TARN::Components;
using TARN::BaseStyle;
using TARN::PeriodicTable::PeriodicTableView;

namespace {

/// A component that a class derived from it stays.
class SpecialCard : public CardWidget
{
    Q_OBJECT
};

} // namespace

/// What polishing hands to the application's own components.
class ComponentsPolishTest : public QObject
{
    Q_OBJECT

private:
    UniqueTheme m_theme;
    BaseStyle m_style;

    QString nameOf(const QObject &object, const char *property) const
    {
        return m_theme.nameOf(object.property(property));
    }

    /// Compares the dynamic property of \a object with what the theme calls \a expected.
    void compareName(const QObject &object, const char *property, const char *expected) const
    {
        QVERIFY2(
            nameOf(object, property) == text(expected),
            qPrintable(QStringLiteral("%1 is %2").arg(text(property), nameOf(object, property))));
    }

    /// Compares the corner radius that \a object was handed with \a expected.
    static void compareRadius(const QObject &object, int expected)
    {
        const QVariant radius = object.property("CornerRadius");
        QCOMPARE(radius.userType(), int(QMetaType::Double));
        QCOMPARE(radius.toInt(), expected);
    }

private Q_SLOTS:
    void cardParts_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<bool>("styled");
        QTest::newRow("header") << QByteArray("CardWidgetBase_Header") << true;
        QTest::newRow("contents") << QByteArray("CardWidgetBase_Contents") << true;
        QTest::newRow("footer") << QByteArray("CardWidgetBase_Footer") << true;
        QTest::newRow("title") << QByteArray("CardWidgetBase_Title") << false;
        QTest::newRow("subtitle") << QByteArray("CardWidgetBase_Subtitle") << false;
    }

    void cardParts()
    {
        QFETCH(QByteArray, property);
        QFETCH(bool, styled);
        QWidget part;
        part.setProperty(property.constData(), true);
        m_style.polish(&part);
        QCOMPARE(part.testAttribute(Qt::WA_StyledBackground), styled);

        QWidget no;
        no.setProperty(property.constData(), false);
        m_style.polish(&no);
        QVERIFY(!no.testAttribute(Qt::WA_StyledBackground));
    }

    void cardTitle_data()
    {
        QTest::addColumn<bool>("minimized");
        QTest::addColumn<QString>("expected");
        QTest::newRow("minimized") << true << text("base");
        QTest::newRow("not minimized") << false << text("medium");
    }

    void cardTitle()
    {
        QFETCH(bool, minimized);
        QFETCH(QString, expected);
        CardWidget card;
        card.setProperty("minimized", minimized);
        QLabel title(&card);
        title.setProperty("CardWidgetBase_Title", true);
        m_style.polish(&title);
        QCOMPARE(UniqueTheme::sizeOf(title.font()), expected);
        QCOMPARE(title.font().family(), text("DejaVu Sans"));
        const QVariant small = title.property("CardWidgetBase_Title_MinimizedFont");
        const QVariant normal = title.property("CardWidgetBase_Title_DefaultFont");
        QCOMPARE(small.userType(), int(QMetaType::QFont));
        QCOMPARE(normal.userType(), int(QMetaType::QFont));
        QCOMPARE(UniqueTheme::sizeOf(small.value<QFont>()), text("base"));
        QCOMPARE(UniqueTheme::sizeOf(normal.value<QFont>()), text("medium"));
    }

    void cardTitleWithoutParent()
    {
        QLabel title;
        title.setProperty("CardWidgetBase_Title", true);
        m_style.polish(&title);
        QCOMPARE(UniqueTheme::sizeOf(title.font()), text("medium"));
    }

    void cardTitleInAMinimizedWindow()
    {
        QWidget window;
        window.setWindowState(Qt::WindowMinimized);
        QLabel title(&window);
        title.setProperty("CardWidgetBase_Title", true);
        m_style.polish(&title);
        QCOMPARE(UniqueTheme::sizeOf(title.font()), text("base"));
    }

    void noCardTitle()
    {
        CardWidget card;
        QLabel label(&card);
        label.setProperty("CardWidgetBase_Title", false);
        const QFont before = label.font();
        m_style.polish(&label);
        QCOMPARE(label.font(), before);
        QVERIFY(!label.property("CardWidgetBase_Title_MinimizedFont").isValid());
        QVERIFY(!label.property("CardWidgetBase_Title_DefaultFont").isValid());
    }

    // A subtitle that is a label is the one that the label's own disabled text gives way to.
    void cardSubtitle()
    {
        QLabel label;
        QWidget widget;
        for (QWidget *subtitle : {static_cast<QWidget *>(&label), &widget}) {
            subtitle->setProperty("CardWidgetBase_Subtitle", true);
            m_style.polish(subtitle);
            const QPalette palette = subtitle->palette();
            QCOMPARE(m_theme.nameOf(palette.brush(QPalette::Active, QPalette::WindowText)),
                     text("ForegroundDisabledBrush"));
            QCOMPARE(m_theme.nameOf(palette.brush(QPalette::Inactive, QPalette::WindowText)),
                     text("ForegroundDisabledBrush"));
            QCOMPARE(m_theme.nameOf(palette.brush(QPalette::Disabled, QPalette::WindowText)),
                     text("ForegroundDisabledBrushDisabled"));
        }
        QWidget no;
        no.setProperty("CardWidgetBase_Subtitle", false);
        const QPalette before = no.palette();
        m_style.polish(&no);
        QCOMPARE(no.palette(), before);
    }

    void card()
    {
        CardWidget card;
        SpecialCard special;
        for (QWidget *widget : {&card, static_cast<CardWidget *>(&special)}) {
            m_style.polish(widget);
            compareName(*widget, "BackgroundBrush", "ForegroundMouseOverBrush");
            compareName(*widget, "BackgroundBrushDisabled", "ForegroundMouseOverBrushDisabled");
        }
    }

    void containers_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("button group") << QByteArray("ButtonGroupWidget_Container");
        QTest::newRow("colour button") << QByteArray("ColorButtonWidget_Container");
    }

    void containers()
    {
        QFETCH(QByteArray, property);
        QWidget container;
        container.setProperty(property.constData(), true);
        m_style.polish(&container);
        compareRadius(container, UniqueTheme::baseRadius);

        QWidget no;
        no.setProperty(property.constData(), false);
        m_style.polish(&no);
        QVERIFY(!no.property("CornerRadius").isValid());
    }

    void buttonGroup()
    {
        ButtonGroupWidget group;
        m_style.polish(&group);
        compareName(group, "BackgroundBrush", "ListBackgroundBrush");
        compareName(group, "BackgroundBrushDisabled", "ListBackgroundBrushDisabled");
        compareName(group, "BorderBrush", "ListBorderBrush");
        compareName(group, "BorderBrushDisabled", "ListBorderBrushDisabled");
        compareName(group, "WorkflowLinkBrush", "PrioritySecondaryUpLevel1Brush");
        compareName(group, "WorkflowLinkBrushDisabled", "PrioritySecondaryUpLevel1BrushDisabled");
        QVERIFY(!group.property("CornerRadius").isValid());
    }

    void roundedPixmap()
    {
        QPixmap pixmap(4, 4);
        pixmap.fill(Qt::red);
        QLabel picture;
        picture.setProperty("roundedPixmap", pixmap);
        m_style.polish(&picture);
        compareName(picture, "BorderBrush", "BackgroundSubLevel1Brush");
        compareRadius(picture, UniqueTheme::mediumRadius);
    }

    void roundedPixmapThatIsNone_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("unset") << QVariant();
        QTest::newRow("null") << QVariant(QPixmap());
        QTest::newRow("flag") << QVariant(true);
    }

    void roundedPixmapThatIsNone()
    {
        QFETCH(QVariant, value);
        QLabel picture;
        picture.setProperty("roundedPixmap", value);
        const QList<QByteArray> before = picture.dynamicPropertyNames();
        m_style.polish(&picture);
        QCOMPARE(picture.dynamicPropertyNames(), before);
    }

    void pill()
    {
        QLabel pill;
        pill.setProperty("Pill_Font", true);
        m_style.polish(&pill);
        QCOMPARE(UniqueTheme::sizeOf(pill.font()), text("small"));
        QCOMPARE(pill.font().weight(), 75);

        QLabel no;
        no.setProperty("Pill_Font", false);
        const QFont before = no.font();
        m_style.polish(&no);
        QCOMPARE(no.font(), before);
    }

    // The pill's font comes after the title's.
    void pillInACardTitle()
    {
        QLabel label;
        label.setProperty("Pill_Font", true);
        label.setProperty("CardWidgetBase_Title", true);
        m_style.polish(&label);
        QCOMPARE(UniqueTheme::sizeOf(label.font()), text("small"));
    }

    void periodicTable()
    {
        PeriodicTableView table;
        m_style.polish(&table);
        compareName(table, "PeriodicTableDelegate_BackgroundColor", "StatusConfigColor");
        compareName(table, "PeriodicTableDelegate_BorderColor", "StatusConfigColor");
        compareName(table, "PeriodicTableDelegate_ForegroundColor", "ForegroundColor");
        compareName(table, "PeriodicTableDelegate_ForegroundSubLevelColor",
                    "ForegroundSubLevel1Color");
        compareName(table, "PeriodicTableDelegate_ForegroundUpLevelColor",
                    "ForegroundUpLevel1Color");
        const QVariant list = table.property("PeriodicTableDelegate_ColorList");
        QCOMPARE(list.userType(), qMetaTypeId<QList<QColor>>());
        QStringList names;
        for (const QColor &color : list.value<QList<QColor>>()) {
            names << m_theme.nameOf(color);
        }
        const QStringList expected{
            text("Series01Color"), text("Series02Color"), text("Series03Color"),
            text("Series04Color"), text("Series05Color"), text("Series06Color"),
            text("Series07Color"), text("Series08Color"), text("Series09Color"),
            text("Series10Color"), text("Series11Color")};
        QCOMPARE(names, expected);
        QVERIFY(table.property("hideFocusRect").toBool());
    }

    void rangeSliderSettings()
    {
        RangeSlider slider;
        m_style.polish(&slider);
        QCOMPARE(slider.property("orientation").value<Qt::Orientation>(), Qt::Horizontal);
        const auto compareFlag = [&slider](const char *name, bool expected) {
            QCOMPARE(slider.property(name).userType(), int(QMetaType::Bool));
            QCOMPARE(slider.property(name).toBool(), expected);
        };
        compareFlag("invertedAppearance", false);
        compareFlag("invertedControls", false);
        compareFlag("tracking", true);
        QCOMPARE(slider.property("tickPosition").userType(), int(QMetaType::Int));
        QCOMPARE(slider.property("tickPosition").toInt(), 0);
        compareRadius(slider, UniqueTheme::baseRadius);
    }

    void rangeSliderBrushes()
    {
        RangeSlider slider;
        slider.setEnabled(false);
        m_style.polish(&slider);
        compareName(slider, "SunkenBrush", "SliderThumbNailPressedBrush");
        compareName(slider, "HoverBrush", "SliderThumbNailHoverBrush");
        compareName(slider, "DefaultBrush", "InputForegroundBrush");
        compareName(slider, "DefaultBrushDisabled", "InputForegroundBrushDisabled");
        compareName(slider, "BackgroundBrush", "InputBackgroundBrush");
        compareName(slider, "BackgroundBrushDisabled", "InputBackgroundBrushDisabled");
        compareName(slider, "BorderBrush", "InputBorderBrush");
        compareName(slider, "BorderBrushDisabled", "InputBorderBrushDisabled");
        compareName(slider, "RangeBrush", "MainBrush");
        compareName(slider, "RangeBrushDisabled", "MainBrushDisabled");
    }

    void otherWidgetsAreHandedNothing()
    {
        QFrame frame;
        const QList<QByteArray> before = frame.dynamicPropertyNames();
        m_style.polish(&frame);
        QCOMPARE(frame.dynamicPropertyNames(), before);
    }
};

QTEST_MAIN(ComponentsPolishTest)
#include "ComponentsPolishTest.moc"
