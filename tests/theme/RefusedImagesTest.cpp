#include <resources/ThemeResources.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>

#include <memory>
#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>
#include <sys/stat.h>

using TARN::BaseTheme;
using TARN::ThemeResources;

namespace {

const QByteArray iconIndex = "[Icon Theme]\nName=Test\nDirectories=scalable\n"
                             "[scalable]\nType=Scalable\nSize=16\nMinSize=8\nMaxSize=512\n";

QByteArray drawing(const QByteArray &content = {})
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='16' height='16'><rect width='16' height='16' fill='red'/>" +
           content + "</svg>";
}

bool isRed(const QIcon &icon)
{
    const QPixmap pixmap = icon.pixmap(16);
    return !pixmap.isNull() && pixmap.toImage().pixelColor(8, 8) == Qt::red;
}

} // namespace

/// Images of a theme that would keep the program waiting when the toolkit reads them by itself.
class RefusedImagesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ThemeRepository> m_repository;

    QString images(const QString &path) const { return text("Test/Images/Test/") + path; }

    void makePipe(const QString &path) const
    {
        const QByteArray pipe = QFile::encodeName(m_repository->path(path));
        QCOMPARE(mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    }

    /// Writes a theme with one image that is sound and one that links to a pipe.
    void writeTheme() const
    {
        m_repository->addTheme(text("Test"));
        m_repository->write(images(text("index.theme")), iconIndex);
        m_repository->write(images(text("scalable/sound.svg")), drawing());
        m_repository->write(images(text("scalable/linked.svg")),
                            drawing("<image width='9' height='9' xlink:href='pipe'/>"));
        makePipe(images(text("scalable/pipe")));
    }

    /// Applies the theme. Returns what warnings say of files, without their folders.
    QStringList refusedFiles(const QString &theme = text("Test")) const
    {
        MessageRecorder messages;
        BaseTheme(m_repository->path(theme)).customize(qApp);
        const QRegularExpression path(text("[^ ]*/([^ /]+) is not used"));
        QStringList files;
        for (const QString &message : messages.take()) {
            files.append(path.match(message).captured(1));
        }
        files.sort();
        return files;
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TARN_USE_NATIVE_STYLE", "1");
        m_repository = std::make_unique<ThemeRepository>();
    }

    void drawingsWithLinks()
    {
        writeTheme();
        m_repository->write(images(text("theme_resources/linked.svg")),
                            drawing("<image width='9' height='9' xlink:href='pipe'/>"));
        m_repository->write(images(text("theme_resources/below/sound.svg")), drawing());
        QCOMPARE(refusedFiles(),
                 QStringList({text("linked.svg"), text("linked.svg"), text("pipe")}));

        QVERIFY(isRed(QIcon::fromTheme(text("sound"))));
        QVERIFY(isRed(ThemeResources::getIcon(text("sound"))));
        QVERIFY(isRed(QIcon(text("resources:below/sound.svg"))));
        QVERIFY(QIcon::fromTheme(text("linked")).isNull());
        QVERIFY(QIcon::fromTheme(text("pipe")).isNull());
        QVERIFY(ThemeResources::getIcon(text("linked")).isNull());
        QVERIFY(!QFile::exists(text("icons:linked.svg")));
        QVERIFY(!QFile::exists(text("resources:linked.svg")));
    }

    /// The toolkit opens these whatever icon is asked for.
    void pipesInPlaceOfTheIndex_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("index") << "index.theme";
        QTest::newRow("cache") << "icon-theme.cache";
    }

    void pipesInPlaceOfTheIndex()
    {
        QFETCH(QString, name);
        const QString theme = QString::fromLatin1(QTest::currentDataTag());
        m_repository->addTheme(theme);
        const QString folder = theme + text("/Images/") + theme + QLatin1Char('/');
        m_repository->write(folder + text("index.theme"), iconIndex);
        m_repository->write(folder + text("scalable/sound.svg"), drawing());
        QFile::remove(m_repository->path(folder + name));
        makePipe(folder + name);
        QCOMPARE(refusedFiles(theme), QStringList{name});
        // Without its index a folder is no icon theme.
        QCOMPARE(isRed(QIcon::fromTheme(text("sound"))), name == text("icon-theme.cache"));
        QVERIFY(isRed(ThemeResources::getIcon(text("sound"))));
    }

    void foldersOutside_data()
    {
        QTest::addColumn<QByteArray>("folder");
        QTest::newRow("as it is") << QByteArray("../../../outside");
        QTest::newRow("encoded") << QByteArray("%2e%2e/../../outside");
    }

    /// Nobody has looked into the folders that an icon theme's index names elsewhere.
    void foldersOutside()
    {
        QFETCH(QByteArray, folder);
        m_repository->addTheme(text("Test"));
        m_repository->write(text("outside/elsewhere.svg"), drawing());
        m_repository->write(images(text("index.theme")),
                            QByteArray(iconIndex).replace("scalable", folder));
        QCOMPARE(refusedFiles(), QStringList{text("index.theme")});
        QVERIFY(QIcon::fromTheme(text("elsewhere")).isNull());
    }

    void iconThemesOutside()
    {
        m_repository->addTheme(text("Test"));
        m_repository->write(images(text("index.theme")),
                            QByteArray(iconIndex).replace("Name=Test", "Inherits=../../outside"));
        m_repository->write(text("Test/outside/index.theme"), iconIndex);
        m_repository->write(text("Test/outside/scalable/elsewhere.svg"), drawing());
        QCOMPARE(refusedFiles(), QStringList{text("index.theme")});
        QVERIFY(QIcon::fromTheme(text("elsewhere")).isNull());
    }

    /// The folder of the images is called like the theme.
    void namesOutside()
    {
        m_repository->addTheme(text("Test"));
        m_repository->write(text("Test/theme.xml"), "<theme><name>../outside</name></theme>");
        m_repository->write(text("Test/outside/index.theme"), iconIndex);
        m_repository->write(text("Test/outside/scalable/elsewhere.svg"), drawing());
        QCOMPARE(refusedFiles(), QStringList{text("outside")});
        QVERIFY(QIcon::fromTheme(text("elsewhere")).isNull());
        QVERIFY(ThemeResources::getIcon(text("elsewhere")).isNull());
        QVERIFY(!ThemeResources::getIcon(text("action.close")).isNull());
    }

    /// Where there is no place for what is left of the images, none of them is used.
    void noPlaceForLinks()
    {
        writeTheme();
        qputenv("TMPDIR", "/proc/self");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("scalable/pipe is not used")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("linked.svg is not used")));
        BaseTheme(m_repository->path(text("Test"))).customize(qApp);
        QVERIFY(QIcon::fromTheme(text("sound")).isNull());
        QVERIFY(ThemeResources::getIcon(text("sound")).isNull());
        QVERIFY(!ThemeResources::getIcon(text("action.close")).isNull());
    }

    /// What stands for the theme's folder goes with the theme.
    void takenBack()
    {
        qApp->setProperty("appLiveThemeSwitch", true);
        writeTheme();
        QCOMPARE(refusedFiles().size(), 2);
        const QString links = QIcon::themeSearchPaths().constLast();
        QVERIFY(links != m_repository->path(text("Test/Images/")));
        QVERIFY(QDir(links).exists());

        m_repository->addTheme(text("Other"));
        QCOMPARE(refusedFiles(text("Other")), QStringList());
        QVERIFY(!QIcon::themeSearchPaths().contains(links));
        QVERIFY(!QDir(links).exists());
    }
};

QTEST_MAIN(RefusedImagesTest)
#include "RefusedImagesTest.moc"
