#include <QtTest/QtTest>

/// Warnings and errors that fail a test though all of its statements hold.
class UnexpectedWarningsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void warning() { qWarning("Nothing is left"); }

    void likeAKnownOne() { qWarning("This plugin does nothing"); }

    void critical() { qCritical("Nothing is left"); }

    void ofARow_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("first") << 1;
        QTest::newRow("second") << 2;
    }

    void ofARow()
    {
        QFETCH(int, number);
        qWarning("There is no number %d", number);
    }

    void besideAnExpectedOne()
    {
        QTest::ignoreMessage(QtWarningMsg, "Nothing is left");
        qWarning("Nothing is left");
        qWarning("Nothing at all");
    }
};

QTEST_MAIN(UnexpectedWarningsTest)
#include "UnexpectedWarningsTest.moc"
