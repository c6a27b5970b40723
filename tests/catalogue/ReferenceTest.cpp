#include <catalogue/Catalogue.h>
#include <catalogue/Properties.h>

#include <QtCore/QFile>
#include <QtTest/QtTest>

#include <PropertyReference.h>
#include <VariableReference.h>
#include <support/Text.h>

namespace {

QString contentsOf(const char *path)
{
    QFile file(text(MOX_CHECKOUT "/") + text(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString variableReference()
{
    return TARN::Reference::makeVariableReference(contentsOf("tools/reference/theme-variables.md"));
}

QString propertyReference()
{
    return TARN::Reference::makePropertyReference(
        contentsOf("tools/reference/widget-properties.md"));
}

} // namespace

/// The references of variables and properties.
class ReferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Fails when the catalogue has changed: mox-theme-reference writes the files anew.
    void theFilesAreUpToDate_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("reference");
        QTest::newRow("variables") << QByteArray("docs/theme-variables.md") << variableReference();
        QTest::newRow("properties")
            << QByteArray("docs/widget-properties.md") << propertyReference();
    }

    void theFilesAreUpToDate()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, reference);
        const QStringList expected = reference.split(QLatin1Char('\n'));
        const QStringList found = contentsOf(file.constData()).split(QLatin1Char('\n'));
        for (int line = 0; line < qMin(expected.size(), found.size()); ++line) {
            QCOMPARE(found.at(line), expected.at(line));
        }
        QCOMPARE(found.size(), expected.size());
    }

    void nothingIsLeftToFillIn()
    {
        QVERIFY(!variableReference().contains(QLatin1Char('%')));
        QVERIFY(!propertyReference().contains(QLatin1Char('%')));
    }

    /// Those that nobody but the library heeds are not.
    void propertiesOfApplicationsAreListed()
    {
        const QString reference = propertyReference();
        for (const TARN::PropertySection &section : TARN::Catalogue::propertySections()) {
            for (const TARN::PropertyRow &row : section.rows) {
                const char *name = nameOf(row.property);
                const QString quoted = QLatin1Char('"') + text(name) + QLatin1Char('"');
                const bool isListed = row.use != TARN::PropertyUse::Internal;
                QVERIFY2(reference.contains(quoted) == isListed, name);
                QVERIFY2(!isListed || reference.contains(text(row.meaning)), name);
            }
        }
    }

    void propertiesThatMeanTheSameShareARow()
    {
        QVERIFY(propertyReference().contains(
            text("| \"Status\", \"Order\", \"ButtonType\" (text) | ")));
    }

    /// Those whose names are composed are told in words.
    void namedVariablesAreListed()
    {
        const QString text = variableReference();
        for (const auto &[group, name] :
             {std::pair("brushes", "MainBrush"), std::pair("colors", "Series11Color"),
              std::pair("cornerRadius", "LargeSize"),
              std::pair("factors", "DarkBackgroundDisableFactor")}) {
            const TARN::Variable *variable = TARN::Catalogue::find(::text(group), ::text(name));
            QVERIFY(variable);
            QVERIFY2(text.contains(QLatin1Char('`') + variable->name + QLatin1Char('`')), name);
            QVERIFY2(text.contains(variable->meaning), name);
        }
        QVERIFY(!text.contains(::text("ButtonDangerCheckedHoverBorderBrush")));
    }
};

QTEST_GUILESS_MAIN(ReferenceTest)
#include "ReferenceTest.moc"
