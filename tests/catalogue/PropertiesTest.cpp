#include <catalogue/Properties.h>
#include <resources/ThemeResources.h>

#include <QtCore/QSet>
#include <QtTest/QtTest>

#include <cstring>

using TARN::Property;
using TARN::PropertyRow;
using TARN::PropertySection;
namespace Catalogue = TARN::Catalogue;

namespace {

QVector<PropertyRow> allRows()
{
    QVector<PropertyRow> rows;
    for (const PropertySection &section : Catalogue::propertySections()) {
        rows += section.rows;
    }
    return rows;
}

} // namespace

/// That the catalogue of properties is sound.
class PropertiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreUnique()
    {
        QSet<QByteArray> names;
        for (const char *name : TARN::propertyNames) {
            QVERIFY2(!names.contains(name), name);
            names.insert(name);
        }
        QCOMPARE(std::size_t(names.size()), TARN::propertyCount);
    }

    void everyPropertyHasARow()
    {
        QSet<int> properties;
        for (const PropertyRow &row : allRows()) {
            properties.insert(int(row.property));
        }
        QCOMPARE(std::size_t(properties.size()), TARN::propertyCount);
    }

    void rowsAreFilledIn()
    {
        for (const PropertyRow &row : allRows()) {
            QVERIFY2(std::strlen(row.bearer) > 0, nameOf(row.property));
            QVERIFY2(std::strlen(row.meaning) > 0, nameOf(row.property));
        }
    }

    /// A bearer has one meaning for a property.
    void bearersAreUnique()
    {
        QSet<QPair<int, QByteArray>> pairs;
        for (const PropertyRow &row : allRows()) {
            const auto pair = qMakePair(int(row.property), QByteArray(row.bearer));
            QVERIFY2(!pairs.contains(pair), nameOf(row.property));
            pairs.insert(pair);
        }
    }

    void namesThatAreNoIdentifiers()
    {
        QCOMPARE(nameOf(Property::NoMenuArrow), "no menu arrow");
        QCOMPARE(nameOf(Property::Switch), "switch");
    }

    void themeVariablesAreThosePublished()
    {
        using TARN::ThemeResources;
        QCOMPARE(nameOf(Property::ThemeVariables), ThemeResources::getThemeVariablePropertyName());
        QCOMPARE(nameOf(Property::InternalThemeVariables),
                 ThemeResources::getInternalThemeVariablePropertyName());
    }
};

QTEST_GUILESS_MAIN(PropertiesTest)
#include "PropertiesTest.moc"
