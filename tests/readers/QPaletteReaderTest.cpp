#include <readers/QPaletteReader.h>

#include <QtTest/QtTest>

#include <support/MessageRecorder.h>
#include <support/ThemeRepository.h>

using TARN::QPaletteReader;

namespace {

const QMap<QString, QColor> colors{{QStringLiteral("Main"), QColor(1, 2, 3)},
                                   {QStringLiteral("Both"), QColor(4, 5, 6)}};

QMap<QString, QBrush> brushes()
{
    return {{QStringLiteral("Both"), QBrush(QColor(7, 8, 9))},
            {QStringLiteral("Dense"), QBrush(QColor(10, 11, 12), Qt::Dense4Pattern)}};
}

QPalette basePalette()
{
    QPalette palette(QColor(90, 91, 92), QColor(93, 94, 95));
    palette.setColor(QPalette::Disabled, QPalette::Link, QColor(96, 97, 98));
    return palette;
}

} // namespace

/// The palette mapping file.
class QPaletteReaderTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_files;

    QPaletteReader read(const QByteArray &content) const
    {
        return {m_files.write(QStringLiteral("mapping.xml"), content), brushes(), colors,
                basePalette()};
    }

    QPaletteReader readRoles(const QByteArray &roles) const
    {
        return read("<QPalette>" + roles + "</QPalette>");
    }

private Q_SLOTS:
    void missingFileGivesTheBase()
    {
        const QPaletteReader reader(m_files.path(QStringLiteral("none")), brushes(), colors,
                                    basePalette());
        QCOMPARE(reader.getStatus(), 1);
        QCOMPARE(reader.deserialize(), basePalette());
    }

    void malformedFileGivesTheBase()
    {
        const QPaletteReader reader =
            read("<QPalette>" + paletteRole("Window", "#ff0000") + "</QPalett>");
        QCOMPARE(reader.getStatus(), 2);
        QCOMPARE(reader.deserialize(), basePalette());
    }

    void otherRootGivesTheBase()
    {
        const QPaletteReader reader =
            read("<Palette>" + paletteRole("Window", "#ff0000") + "</Palette>");
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.deserialize(), basePalette());
    }

    void valuesResolve_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QBrush>("expected");
        QTest::newRow("literal") << QByteArray("#102030") << QBrush(QColor(16, 32, 48));
        QTest::newRow("translucent") << QByteArray("#80102030") << QBrush(QColor(16, 32, 48, 128));
        QTest::newRow("keyword") << QByteArray("red") << QBrush(QColor(Qt::red));
        QTest::newRow("transparent") << QByteArray("transparent") << QBrush(QColor(0, 0, 0, 0));
        QTest::newRow("colour") << QByteArray("@Main") << QBrush(QColor(1, 2, 3));
        QTest::newRow("brush") << QByteArray("@Dense")
                               << QBrush(QColor(10, 11, 12), Qt::Dense4Pattern);
        QTest::newRow("brush before colour") << QByteArray("@Both") << QBrush(QColor(7, 8, 9));
    }

    void valuesResolve()
    {
        QFETCH(QByteArray, value);
        QFETCH(QBrush, expected);
        const QPaletteReader reader = readRoles(paletteRole("Base", value, "Inactive"));
        QCOMPARE(reader.getStatus(), 0);
        QPalette palette = basePalette();
        palette.setBrush(QPalette::Inactive, QPalette::Base, expected);
        QCOMPARE(reader.deserialize(), palette);
    }

    void faultyRolesSetNothing_data()
    {
        QTest::addColumn<QByteArray>("role");
        QTest::newRow("unknown role") << paletteRole("Backdrop", "#ff0000");
        QTest::newRow("case of a role") << paletteRole("window", "#ff0000");
        QTest::newRow("no role") << QByteArray("<ColorRole/>");
        QTest::newRow("unknown group") << paletteRole("Window", "#ff0000", "Everywhere");
        QTest::newRow("unknown reference") << paletteRole("Window", "@Unknown");
        QTest::newRow("empty reference") << paletteRole("Window", "@");
        QTest::newRow("no colour") << paletteRole("Window", "notacolour");
        QTest::newRow("blanks") << paletteRole("Window", " #ff0000 ");
        QTest::newRow("empty") << paletteRole("Window", "");
    }

    void faultyRolesSetNothing()
    {
        QFETCH(QByteArray, role);
        MessageRecorder messages;
        const QPaletteReader reader = readRoles(role + paletteRole("Base", "#00ff00"));
        QCOMPARE(messages.take(), QStringList());
        QCOMPARE(reader.getStatus(), 2);
        QPalette palette = basePalette();
        palette.setColor(QPalette::Base, QColor(0, 255, 0));
        QCOMPARE(reader.deserialize(), palette);
    }

    void otherElementsAreIgnored()
    {
        const QPaletteReader reader =
            readRoles("<Other role='Mid'><ColorGroup group='All'>red</ColorGroup></Other>"
                      "<colorrole role='Nonsense'/><!-- x -->"
                      "<ColorRole role='Base'><Other group='All'>red</Other>text</ColorRole>");
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.deserialize(), basePalette());
    }

    void laterRoleWins()
    {
        const QPaletteReader reader =
            readRoles(paletteRole("Base", "#010203") + paletteRole("Base", "#040506", "Active"));
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.deserialize().color(QPalette::Active, QPalette::Base), QColor(4, 5, 6));
        QCOMPARE(reader.deserialize().color(QPalette::Inactive, QPalette::Base), QColor(1, 2, 3));
    }

    void faultEndsItsRoleOnly()
    {
        const QPaletteReader reader =
            readRoles("<ColorRole role='Window'><ColorGroup group='Active'>#010203</ColorGroup>"
                      "<ColorGroup group='Nowhere'>#040506</ColorGroup>"
                      "<ColorGroup group='Inactive'>#070809</ColorGroup></ColorRole>" +
                      paletteRole("Base", "#0a0b0c"));
        QCOMPARE(reader.getStatus(), 2);
        const QPalette palette = reader.deserialize();
        QCOMPARE(palette.color(QPalette::Active, QPalette::Window), QColor(1, 2, 3));
        QCOMPARE(palette.color(QPalette::Inactive, QPalette::Window),
                 basePalette().color(QPalette::Inactive, QPalette::Window));
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::Base), QColor(10, 11, 12));
    }

    void groups()
    {
        const QPalette all = readRoles(paletteRole("Mid", "#010203", "All")).deserialize();
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(all.color(group, QPalette::Mid), QColor(1, 2, 3));
        }
        for (const char *group : {"Active", "Normal", "Current"}) {
            const QPalette palette = readRoles(paletteRole("Mid", "#010203", group)).deserialize();
            QCOMPARE(palette.color(QPalette::Active, QPalette::Mid), QColor(1, 2, 3));
            QCOMPARE(palette.color(QPalette::Inactive, QPalette::Mid),
                     basePalette().color(QPalette::Inactive, QPalette::Mid));
        }
    }

    void everyRoleIsKnownByItsName()
    {
        const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
        for (int i = 0; i < roles.keyCount(); ++i) {
            const QPaletteReader reader = readRoles(paletteRole(roles.key(i), "#0a141e"));
            QCOMPARE(reader.getStatus(), 0);
            const auto role = static_cast<QPalette::ColorRole>(roles.value(i));
            if (role == QPalette::NColorRoles) {
                QCOMPARE(reader.deserialize(), basePalette());
            } else if (role == QPalette::Highlight) {
                QCOMPARE(reader.deserialize().color(role).rgb(), QColor(10, 20, 30).rgb());
            } else {
                QCOMPARE(reader.deserialize().color(role), QColor(10, 20, 30));
            }
        }
    }

    void highlightIsTranslucent()
    {
        const QPalette palette = readRoles(paletteRole("Highlight", "#ff0000", "Active") +
                                           paletteRole("Highlight", "@Dense", "Inactive") +
                                           paletteRole("Link", "#ff0000"))
                                     .deserialize();
        const QBrush &active = palette.brush(QPalette::Active, QPalette::Highlight);
        QCOMPARE(active.color().rgb(), QColor(Qt::red).rgb());
        QCOMPARE(qRound(active.color().alphaF() * 100), 60);
        const QBrush &inactive = palette.brush(QPalette::Inactive, QPalette::Highlight);
        QCOMPARE(inactive.style(), Qt::Dense4Pattern);
        QCOMPARE(qRound(inactive.color().alphaF() * 100), 60);
        QCOMPARE(palette.color(QPalette::Link).alpha(), 255);
    }
};

QTEST_MAIN(QPaletteReaderTest)
#include "QPaletteReaderTest.moc"
