#include "support/themes/UniqueTheme.h"

#include <catalogue/Properties.h>
#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOption>

#include <utility>

using TARN::BaseStyle;
using TARN::Property;
using TARN::PropertyRow;
using TARN::PropertySection;
using TARN::PropertyUse;

namespace {

class SmallWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool small MEMBER m_isSmall)

private:
    bool m_isSmall = true;
};

class DerivedWidget : public SmallWidget
{
    Q_OBJECT
};

/// Declares the property of its base once more.
class HidingWidget : public DerivedWidget
{
    Q_OBJECT
    Q_PROPERTY(bool small MEMBER m_isSmall)
    Q_PROPERTY(int level MEMBER m_level)

private:
    bool m_isSmall = false;
    int m_level = 0;
};

class ThinScrollBar : public QScrollBar
{
    Q_OBJECT
    Q_PROPERTY(bool minimized MEMBER m_isMinimized)

private:
    bool m_isMinimized = true;
};

/// What polishing gives a widget, in words.
QStringList whatPolishingGave(const QWidget &widget)
{
    QStringList gifts;
    for (const QByteArray &name : widget.dynamicPropertyNames()) {
        gifts.append(QString::fromLatin1(name));
    }
    gifts.append(QString::number(widget.testAttribute(Qt::WA_StyledBackground)));
    gifts.append(QString::number(widget.testAttribute(Qt::WA_SetFont)));
    gifts.append(QString::number(widget.testAttribute(Qt::WA_SetPalette)));
    return gifts;
}

QVariant someValue(const PropertyRow &row)
{
    return row.type == TARN::PropertyType::Pixmap ? QVariant(QPixmap(8, 8)) : QVariant(true);
}

} // namespace

/// How the style reads what widgets tell about themselves.
class WidgetPropertiesTest : public QObject
{
    Q_OBJECT

private:
    UniqueTheme m_theme;
    BaseStyle m_style;

    bool isSmall(const QWidget *widget) const
    {
        return m_style.pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, widget) == 1;
    }

    int thickness(const QScrollBar &scrollBar) const
    {
        QStyleOptionSlider option;
        option.orientation = Qt::Vertical;
        return m_style.sizeFromContents(QStyle::CT_ScrollBar, &option, {100, 100}, &scrollBar)
            .width();
    }

private Q_SLOTS:
    void noWidgetHasNone() { QVERIFY(!isSmall(nullptr)); }

    void whatIsSetOnAWidget()
    {
        QWidget widget;
        QVERIFY(!isSmall(&widget));
        widget.setProperty("smaller", true);
        widget.setProperty("smal", true);
        QVERIFY(!isSmall(&widget));
        widget.setProperty("small", true);
        QVERIFY(isSmall(&widget));
        widget.setProperty("small", false);
        QVERIFY(!isSmall(&widget));
        widget.setProperty("small", QStringLiteral("true"));
        QVERIFY(isSmall(&widget));
        widget.setProperty("small", QVariant());
        QVERIFY(!isSmall(&widget));
    }

    /// Other widgets of the class do not have it.
    void whatIsSetOnOneWidgetOnly()
    {
        QWidget small;
        small.setProperty("small", true);
        const QWidget other;
        QVERIFY(isSmall(&small));
        QVERIFY(!isSmall(&other));
    }

    void whatAClassDeclares()
    {
        SmallWidget widget;
        QVERIFY(isSmall(&widget));
        widget.setProperty("small", false);
        QVERIFY(!isSmall(&widget));
    }

    void whatABaseDeclares()
    {
        const DerivedWidget widget;
        QVERIFY(isSmall(&widget));
    }

    void whatAClassDeclaresAnew()
    {
        HidingWidget widget;
        QVERIFY(!isSmall(&widget));
        widget.setProperty("small", true);
        QVERIFY(isSmall(&widget));
    }

    /// All widgets have one of that name that tells the state of a window.
    void whatHidesAPropertyOfTheToolkit()
    {
        QScrollBar plain;
        QVERIFY(!plain.setProperty("minimized", true));
        const ThinScrollBar thin;
        QCOMPARE(thickness(thin), 5);
        QVERIFY(thickness(plain) > 5);
    }

    void marksTellPolishingWhatAWidgetIs()
    {
        QWidget plain;
        m_style.polish(&plain);
        int count = 0;
        for (const PropertySection &section : TARN::Catalogue::propertySections()) {
            for (const PropertyRow &row : section.rows) {
                if (row.use != PropertyUse::Mark) {
                    continue;
                }
                QWidget marked;
                marked.setProperty(nameOf(row.property), someValue(row));
                m_style.polish(&marked);
                QStringList gifts = whatPolishingGave(marked);
                gifts.removeOne(QString::fromLatin1(nameOf(row.property)));
                QVERIFY2(gifts != whatPolishingGave(plain), nameOf(row.property));
                ++count;
            }
        }
        QVERIFY(count > 0);
    }
};

QTEST_MAIN(WidgetPropertiesTest)
#include "WidgetPropertiesTest.moc"
