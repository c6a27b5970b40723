#include <theme/ThemeQApplication.h>

#include <QtCore/QDirIterator>
#include <QtCore/QSaveFile>
#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>

#include <memory>
#include <preview/FindingsPanel.h>
#include <preview/LivePreview.h>
#include <preview/ThemeSession.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using namespace TARN::ThemeTool;

namespace {

constexpr int Limit = 1000; // milliseconds after a save; the aim is 200

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString copy = to + path.mid(from.size());
        if (!QDir().mkpath(QFileInfo(copy).path()) || !QFile::copy(path, copy)) {
            qFatal("The test can't copy %s", qPrintable(path));
        }
    }
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void save(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0 || !file.commit()) {
        qFatal("The test can't save %s", qPrintable(path));
    }
}

QByteArray mappingWith(const QByteArray &windowColor)
{
    return "<QPalette>" + paletteRole("Window", windowColor) + "</QPalette>";
}

// Finds as many faults as the description has been changed times.
class CountingCheck
{
public:
    QVector<Finding> operator()(const QString &directory)
    {
        const QByteArray description = contentOf(directory + text("/theme.xml"));
        Finding finding;
        finding.file = directory + text("/theme.xml");
        return QVector<Finding>(description.count("fault"), finding);
    }
};

} // namespace

/// A window that follows the theme that is being worked on.
class LivePreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void titleNamesTheTheme();
    void aSaveIsShownInTime();
    void aBrokenFileKeepsTheTheme();
    void findingsFollow();

private:
    [[nodiscard]] QStringList panelTexts() const;

    QTemporaryDir m_folder;
    QString m_theme = m_folder.filePath(text("Dark"));
    int m_argumentCount = 1;
    QByteArray m_program = "preview";
    char *m_arguments[2] = {m_program.data(), nullptr};
    std::unique_ptr<TARN::ThemeQApplication> m_application;
    std::unique_ptr<ThemeSession> m_session;
    std::unique_ptr<LivePreview> m_preview;
};

void LivePreviewTest::initTestCase()
{
    copyFolder(text(MOX_THEMES "/Dark"), m_theme);
    m_application = std::make_unique<TARN::ThemeQApplication>(m_argumentCount, m_arguments);
    m_session = std::make_unique<ThemeSession>(*m_application, m_theme);
    QVERIFY(m_session->apply());
    m_preview = std::make_unique<LivePreview>(*m_application, *m_session, CountingCheck());
    m_preview->window().show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_preview->window()));
}

void LivePreviewTest::cleanupTestCase()
{
    m_preview.reset();
    m_session.reset();
    m_application.reset();
}

QStringList LivePreviewTest::panelTexts() const
{
    QStringList texts;
    for (const auto *label :
         m_preview->window().findChild<FindingsPanel *>()->findChildren<QLabel *>()) {
        if (label->isVisible()) {
            texts.append(label->text());
        }
    }
    return texts;
}

void LivePreviewTest::titleNamesTheTheme()
{
    QVERIFY(m_preview->window().windowTitle().startsWith(text("Dark ")));
    save(m_theme + text("/theme.xml"), "<theme><name>Harbour</name></theme>");
    QTRY_VERIFY_WITH_TIMEOUT(m_preview->window().windowTitle().startsWith(text("Harbour ")), Limit);
}

void LivePreviewTest::aSaveIsShownInTime()
{
    for (const QColor &color : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)}) {
        save(m_theme + text("/qpaletteMapping.xml"), mappingWith(color.name().toLatin1()));
        QTRY_COMPARE_WITH_TIMEOUT(m_preview->window().palette().color(QPalette::Window), color,
                                  Limit);
    }
}

void LivePreviewTest::aBrokenFileKeepsTheTheme()
{
    const QString path = m_theme + text("/config.xml");
    const QByteArray good = contentOf(path);
    save(m_theme + text("/qpaletteMapping.xml"), mappingWith("#123456"));
    QTRY_COMPARE_WITH_TIMEOUT(m_preview->window().palette().color(QPalette::Window),
                              QColor(0x12, 0x34, 0x56), Limit);

    save(path, good.left(good.size() / 2));
    QTRY_VERIFY_WITH_TIMEOUT(panelTexts().join(u' ').contains(text("config.xml, line ")), Limit);
    QCOMPARE(m_preview->window().palette().color(QPalette::Window), QColor(0x12, 0x34, 0x56));
    QVERIFY(m_preview->window().windowTitle().startsWith(text("Dark ")));

    save(path, good);
    QTRY_VERIFY_WITH_TIMEOUT(!panelTexts().join(u' ').contains(text("config.xml")), Limit);
}

void LivePreviewTest::findingsFollow()
{
    QCOMPARE(panelTexts(), QStringList(text("No findings")));
    save(m_theme + text("/theme.xml"), "<theme><name>Dark</name><!-- fault fault --></theme>");
    QTRY_COMPARE_WITH_TIMEOUT(panelTexts(), QStringList(text("2 warnings")), Limit);
    // Those of a theme that is not shown as well.
    save(m_theme + text("/theme.xml"), "<theme><name>Dark</name><!-- fault -->");
    QTRY_VERIFY_WITH_TIMEOUT(panelTexts().contains(text("1 warning")), Limit);
    QVERIFY(panelTexts().join(u' ').contains(text("theme.xml, line ")));
    save(m_theme + text("/theme.xml"), "<theme><name>Dark</name></theme>");
    QTRY_COMPARE_WITH_TIMEOUT(panelTexts(), QStringList(text("No findings")), Limit);
}

QTEST_APPLESS_MAIN(LivePreviewTest)
#include "LivePreviewTest.moc"
