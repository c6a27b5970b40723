#include <QtTest/QtTest>
#include <QtWidgets/QWidget>

/// Warnings that fail no test.
class ExpectedWarningsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expected()
    {
        QTest::ignoreMessage(QtWarningMsg, "Nothing is left");
        qWarning("Nothing is left");
    }

    void known_data()
    {
        QTest::addColumn<bool>("isRaised");
        QTest::newRow("shown") << false;
        QTest::newRow("raised") << true;
    }

    void known()
    {
        QFETCH(bool, isRaised);
        QWidget window;
        window.setMinimumSize(100, 100);
        window.show();
        if (isRaised) {
            window.raise();
        }
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    void lesserMessages()
    {
        qDebug("Nothing is left");
        qInfo("Nothing is left");
    }
};

QTEST_MAIN(ExpectedWarningsTest)
#include "ExpectedWarningsTest.moc"
