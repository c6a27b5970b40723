#include <QtCore/QSaveFile>
#include <QtTest/QtTest>

#include <preview/ThemeFolderWatcher.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>

using TARN::ThemeTool::ThemeFolderWatcher;

namespace {

constexpr int Quiet = 200;  // milliseconds in which nothing more is to come
constexpr int Limit = 1000; // milliseconds in which something has to

void replaceFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0 || !file.commit()) {
        qFatal("The test can't replace %s", qPrintable(path));
    }
}

} // namespace

/// What counts as a change of a theme's folder.
class ThemeFolderWatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsSaidOfNothing();
    void aBurstIsOneChange();
    void everySaveInPlaceIsNoticed();
    void everyReplacedFileIsNoticed();
    void filesBelowAreWatched();
    void addedFoldersAreWatched();
    void removedFilesAreNoticed();
    void theReplacedFolderIsWatched();
    void aMissingFolderIsWaitedFor();
    void neighboursAreNoneOfItsBusiness();

private:
    ThemeRepository m_repository;
    QString m_theme;
};

void ThemeFolderWatcherTest::init()
{
    m_theme = m_repository.addTheme(text("Probe"));
}

void ThemeFolderWatcherTest::nothingIsSaidOfNothing()
{
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    QVERIFY(!saved.wait(Quiet));
}

void ThemeFolderWatcherTest::aBurstIsOneChange()
{
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    m_repository.write(text("Probe/config.xml~"), "backup");
    for (int i = 0; i < 5; ++i) {
        m_repository.write(text("Probe/config.xml"), QByteArray::number(i));
        replaceFile(m_theme + text("/qpaletteMapping.xml"), QByteArray::number(i));
    }
    QVERIFY(saved.wait(Limit));
    QVERIFY(!saved.wait(Quiet));
    QCOMPARE(saved.size(), 1);
}

void ThemeFolderWatcherTest::everySaveInPlaceIsNoticed()
{
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    for (const char *content : {"first", "second", "third"}) {
        m_repository.write(text("Probe/config.xml"), content);
        QVERIFY2(saved.wait(Limit), content);
    }
}

void ThemeFolderWatcherTest::everyReplacedFileIsNoticed()
{
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    for (const char *content : {"first", "second", "third"}) {
        replaceFile(m_theme + text("/config.xml"), content);
        QVERIFY2(saved.wait(Limit), content);
    }
    // In the file that stands there now.
    m_repository.write(text("Probe/config.xml"), "fourth");
    QVERIFY(saved.wait(Limit));
}

void ThemeFolderWatcherTest::filesBelowAreWatched()
{
    m_repository.write(text("Probe/Images/Probe/scalable/go-up.svg"), "<svg/>");
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    m_repository.write(text("Probe/Images/Probe/scalable/go-up.svg"), "<svg></svg>");
    QVERIFY(saved.wait(Limit));
}

void ThemeFolderWatcherTest::addedFoldersAreWatched()
{
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    m_repository.makeFolder(text("Probe/Fonts"));
    QVERIFY(saved.wait(Limit));
    m_repository.write(text("Probe/Fonts/Probe.ttf"), "no font");
    QVERIFY(saved.wait(Limit));
}

void ThemeFolderWatcherTest::removedFilesAreNoticed()
{
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    QVERIFY(QFile::remove(m_theme + text("/config.xml")));
    QVERIFY(saved.wait(Limit));
    m_repository.write(text("Probe/config.xml"), "back");
    QVERIFY(saved.wait(Limit));
}

void ThemeFolderWatcherTest::theReplacedFolderIsWatched()
{
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    m_repository.addTheme(text("New"));
    QVERIFY(QDir().rename(m_theme, m_repository.path(text("Old"))));
    QVERIFY(QDir().rename(m_repository.path(text("New")), m_theme));
    QVERIFY(saved.wait(Limit));
    m_repository.write(text("Probe/config.xml"), "changed");
    QVERIFY(saved.wait(Limit));
    m_repository.write(text("Old/config.xml"), "changed");
    QVERIFY(!saved.wait(Quiet));
}

void ThemeFolderWatcherTest::aMissingFolderIsWaitedFor()
{
    const ThemeFolderWatcher watcher(m_repository.path(text("deep/down/Late")));
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    m_repository.makeFolder(text("deep"));
    QVERIFY(!saved.wait(Quiet));
    m_repository.addTheme(text("deep/down/Late"));
    QVERIFY(saved.wait(Limit));
    QVERIFY(!saved.wait(Quiet));
    m_repository.write(text("deep/down/Late/config.xml"), "changed");
    QVERIFY(saved.wait(Limit));
}

void ThemeFolderWatcherTest::neighboursAreNoneOfItsBusiness()
{
    const ThemeFolderWatcher watcher(m_theme);
    QSignalSpy saved(&watcher, &ThemeFolderWatcher::themeSaved);
    m_repository.write(text("Probe.png"), "picture");
    m_repository.addTheme(text("Probe2"));
    QVERIFY(!saved.wait(Quiet));
}

QTEST_GUILESS_MAIN(ThemeFolderWatcherTest)
#include "ThemeFolderWatcherTest.moc"
