#include <QtTest/QtTest>

#include <text/DidYouMean.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

class DidYouMeanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void distanceCountsEdits_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<int>("distance");
        QTest::newRow("equal") << "Main"
                               << "Main" << 0;
        QTest::newRow("put in") << "Main"
                                << "Mains" << 1;
        QTest::newRow("left out") << "Main"
                                  << "Man" << 1;
        QTest::newRow("replaced") << "Main"
                                  << "Mein" << 1;
        QTest::newRow("swapped") << "Main"
                                 << "Mian" << 1;
        QTest::newRow("swapped at the end") << "Main"
                                            << "Mani" << 1;
        QTest::newRow("both ends") << "Main"
                                   << "xMainx" << 2;
        QTest::newRow("swapped and replaced") << "abcdef"
                                              << "badxef" << 3;
        QTest::newRow("from nothing") << ""
                                      << "abc" << 3;
        QTest::newRow("too far") << "abcd"
                                 << "wxyz" << 4;
        QTest::newRow("much too far") << "abcdefgh"
                                      << "stuvwxyz" << 4;
        QTest::newRow("too long") << QString(500, u'a') + "b"_s
                                  << "b"_s + QString(500, u'a') << 4;
    }

    void distanceCountsEdits()
    {
        constexpr int limit = 3;
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(int, distance);
        QCOMPARE(editDistance(first, second, limit), distance);
        QCOMPARE(editDistance(second, first, limit), distance);
    }

    void nearestNameIsTheOneMeant_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("nearest");
        QTest::newRow("misspelt") << "MianColor"
                                  << "MainColor";
        QTest::newRow("case") << "MAINCOLOR"
                              << "MainColor";
        QTest::newRow("case of a short name") << "red"
                                              << "Red";
        QTest::newRow("blanks") << " MainColor"
                                << "MainColor";
        QTest::newRow("nearer of two") << "MainColo2"
                                       << "MainColor";
        QTest::newRow("short and another") << "Rod"
                                           << "Red";
        QTest::newRow("too short to tell") << "Rx"
                                           << "";
        QTest::newRow("something else") << "Opacity"
                                        << "";
        QTest::newRow("nothing") << ""
                                 << "";
        QTest::newRow("itself is no suggestion") << "MainColor"
                                                 << "";
    }

    void nearestNameIsTheOneMeant()
    {
        const KnownNames names({"MainUpLevel1Color"_s, "MainColor"_s, "MainColor22"_s, "Red"_s});
        QFETCH(QString, name);
        QFETCH(QString, nearest);
        if (name == "MainColor"_s) {
            QCOMPARE(KnownNames({name}).nearest(name), nearest);
        } else {
            QCOMPARE(names.nearest(name), nearest);
        }
    }
};

QTEST_APPLESS_MAIN(DidYouMeanTest)
#include "DidYouMeanTest.moc"
