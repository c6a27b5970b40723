#include <theme/BaseThemeSettings.h>

#include <QtTest/QtTest>

#include <support/ThemeRepository.h>

using TARN::BaseThemeSettings;

/// The description file of a theme.
class BaseThemeSettingsTest : public QObject
{
    Q_OBJECT

private:
    ThemeRepository m_files;

private Q_SLOTS:
    void files_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("name");
        const QString dark = QStringLiteral("Dark");
        QTest::newRow("plain") << QByteArray("<theme><name>Dark</name></theme>") << 0 << dark;
        QTest::newRow("surroundings")
            << QByteArray("<?xml version='1.0' encoding='UTF-8'?><!-- c --><theme version='2'>"
                          "<author/><name id='x'>Dark</name><name>Other</name></theme>")
            << 0 << dark;
        QTest::newRow("text is taken as it is")
            << QByteArray("<theme><name> D&amp;k </name></theme>") << 0 << QStringLiteral(" D&k ");
        QTest::newRow("other root")
            << QByteArray("<Theme><name>Dark</name></Theme>") << 0 << QString();
        QTest::newRow("no name") << QByteArray("<theme/>") << 0 << QString();
        QTest::newRow("deeper name")
            << QByteArray("<theme><x><name>Dark</name></x></theme>") << 0 << QString();
        QTest::newRow("truncated behind the name")
            << QByteArray("<theme><name>Dark</name><aut") << 2 << dark;
        QTest::newRow("empty") << QByteArray() << 2 << QString();
        QTest::newRow("not XML") << QByteArray("name=Dark") << 2 << QString();
    }

    void files()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, status);
        QFETCH(QString, name);
        const BaseThemeSettings settings(m_files.write(QStringLiteral("theme.xml"), content));
        QCOMPARE(settings.getStatus(), status);
        QCOMPARE(settings.getName(), name);
    }

    void missingFile()
    {
        const BaseThemeSettings settings(m_files.path(QStringLiteral("none.xml")));
        QCOMPARE(settings.getStatus(), 1);
        QCOMPARE(settings.getName(), QString());
    }
};

QTEST_MAIN(BaseThemeSettingsTest)
#include "BaseThemeSettingsTest.moc"
