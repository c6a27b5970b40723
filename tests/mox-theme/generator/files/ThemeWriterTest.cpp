#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QtTest>

#include <filesystem>
#include <generator/files/ThemeWriter.h>
#include <mox-theme/support/SmallTheme.h>
#include <support/Text.h>
#include <support/ThemeRepository.h>
#include <unistd.h>

using namespace TARN::ThemeTool;

namespace {

/// Somebody whom read-only folders stop, for as long as it lives: the administrator is not.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_former(geteuid())
    {
        constexpr uid_t nobody = 65534;
        if (m_former == 0 && seteuid(nobody) != 0) {
            qFatal("The test can't give up its rights");
        }
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;
    ~OrdinaryUser()
    {
        if (seteuid(m_former) != 0) {
            qFatal("The test can't take its rights back");
        }
    }

private:
    uid_t m_former;
};

ThemeDefinition otherTheme()
{
    ThemeDefinition theme = smallTheme();
    theme.name = text("Other");
    return theme;
}

/// A repository in which the small theme stands.
class Repository : public ThemeRepository
{
public:
    Repository()
    {
        if (!writeTheme(smallTheme(), theme()).isEmpty()) {
            qFatal("The test can't write its theme");
        }
    }

    [[nodiscard]] QString theme() const { return path(text("Theme")); }
};

} // namespace

/// What happens to the folder that a theme is written to.
class ThemeWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingFoldersAreMade();
    void emptyFoldersAreFilled();
    void relativeFoldersAreThoseOfTheCurrentOne();
    void filesOfTheAuthorStay();
    void linksOfTheAuthorReadAsBefore_data();
    void linksOfTheAuthorReadAsBefore();
    void imagesOfTheAuthorTakeTheirPlace();
    void linksStay();
    void folderThatIsNoThemeIsLeftAlone_data();
    void folderThatIsNoThemeIsLeftAlone();
    void fileInTheWayIsLeftAlone();
    void fileAsParentIsTold();
    void failureLeavesTheFormerTheme();
    void readOnlyRepositoryLeavesTheFormerTheme();
    void immovableThemeIsLeftAlone();
    void unusableNamesAreRefused_data();
    void unusableNamesAreRefused();
};

void ThemeWriterTest::missingFoldersAreMade()
{
    const ThemeRepository repository;
    const QString folder = repository.path(text("a/b/Theme"));
    QCOMPARE(writeTheme(smallTheme(), folder), QString());
    QVERIFY(QFileInfo::exists(folder + text("/theme.xml")));
    QCOMPARE(QDir(repository.path(text("a/b")))
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{text("Theme")});
}

void ThemeWriterTest::emptyFoldersAreFilled()
{
    const ThemeRepository repository;
    const QString folder = repository.makeFolder(text("Theme"));
    QCOMPARE(writeTheme(smallTheme(), folder + text("/")), QString());
    QVERIFY(QFileInfo::exists(folder + text("/config.xml")));
}

void ThemeWriterTest::relativeFoldersAreThoseOfTheCurrentOne()
{
    const ThemeRepository repository;
    QVERIFY(QDir::setCurrent(repository.path()));
    QCOMPARE(writeTheme(smallTheme(), text("Theme")), QString());
    QVERIFY(QFileInfo::exists(repository.path(text("Theme/config.xml"))));
}

void ThemeWriterTest::filesOfTheAuthorStay()
{
    const Repository repository;
    const QStringList own{text("Theme/Images/Small/scalable/own.svg"), text("Theme/notes.txt"),
                          text("Theme/.hidden")};
    for (const QString &file : own) {
        repository.write(file, "own");
    }
    repository.write(text("Theme/config.xml"), "old");
    QVERIFY(QFile::link(text("notes.txt"), repository.path(text("Theme/link"))));
    QCOMPARE(writeTheme(otherTheme(), repository.theme()), QString());

    const ThemeRepository fresh;
    QCOMPARE(writeTheme(otherTheme(), fresh.path(text("Theme"))), QString());
    const auto files = filesBelow(repository.path());
    const auto freshFiles = filesBelow(fresh.path());
    for (auto file = freshFiles.cbegin(); file != freshFiles.cend(); ++file) {
        QCOMPARE(files.value(file.key()), file.value());
    }
    for (const QString &file : own) {
        QFile kept(repository.path(file));
        QVERIFY2(kept.open(QIODevice::ReadOnly), qPrintable(file));
        QCOMPARE(kept.readAll(), QByteArray("own"));
    }
    QVERIFY(QFileInfo(repository.path(text("Theme/link"))).isSymLink());
}

void ThemeWriterTest::linksOfTheAuthorReadAsBefore_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("beside it") << "notes.txt";
    QTest::newRow("below") << "./notes/first.txt";
    QTest::newRow("outside of the theme") << "../shared/notes.txt";
    QTest::newRow("a folder") << "notes";
    QTest::newRow("nothing") << "missing.txt";
    QTest::newRow("from the root") << "/usr/share/notes.txt";
}

void ThemeWriterTest::linksOfTheAuthorReadAsBefore()
{
    QFETCH(const QString, target);
    const Repository repository;
    repository.write(text("Theme/notes.txt"), "own");
    repository.write(text("Theme/notes/first.txt"), "own");
    repository.write(text("shared/notes.txt"), "own");
    const QString link = repository.path(text("Theme/link"));
    QVERIFY(QFile::link(target, link));
    QCOMPARE(writeTheme(otherTheme(), repository.theme()), QString());
    const std::string read = std::filesystem::read_symlink(link.toStdString());
    QCOMPARE(QString::fromStdString(read), target);
}

void ThemeWriterTest::imagesOfTheAuthorTakeTheirPlace()
{
    const Repository repository;
    repository.write(text("own/scalable/action.close.svg"), "<svg/>");
    repository.write(text("own/Cursors/hand.pan.cur"), "cursor");
    ThemeDefinition theme = smallTheme();
    theme.images = repository.path(text("own"));
    QCOMPARE(writeTheme(theme, repository.theme()), QString());
    const QString images = repository.theme() + text("/Images/") + theme.name;
    QFile icon(images + text("/scalable/action.close.svg"));
    QVERIFY(icon.open(QIODevice::ReadOnly));
    QCOMPARE(icon.readAll(), QByteArray("<svg/>"));
    QVERIFY(QFileInfo::exists(images + text("/Cursors/hand.pan.cur")));
    QVERIFY(QFileInfo::exists(images + text("/scalable/action.delete.svg")));
}

void ThemeWriterTest::linksStay()
{
    const Repository repository;
    const QString link = repository.path(text("Link"));
    QVERIFY(QFile::link(repository.theme(), link));
    QCOMPARE(writeTheme(otherTheme(), link), QString());
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(QFileInfo::exists(repository.theme() + text("/Images/Other")));
}

void ThemeWriterTest::folderThatIsNoThemeIsLeftAlone_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("a file") << text("letter.txt");
    QTest::newRow("a hidden file") << text(".profile");
    QTest::newRow("a theme further below") << text("Dark/theme.xml");
}

void ThemeWriterTest::folderThatIsNoThemeIsLeftAlone()
{
    QFETCH(const QString, file);
    const ThemeRepository repository;
    repository.write(text("Theme/") + file, "mine");
    const auto before = filesBelow(repository.path());
    const QString problem = writeTheme(smallTheme(), repository.path(text("Theme")));
    QVERIFY2(problem.endsWith(text("is there already and is no theme")), qPrintable(problem));
    QCOMPARE(filesBelow(repository.path()), before);
}

void ThemeWriterTest::fileInTheWayIsLeftAlone()
{
    const ThemeRepository repository;
    repository.write(text("Theme"), "mine");
    QVERIFY(!writeTheme(smallTheme(), repository.path(text("Theme"))).isEmpty());
    const QMap<QString, QByteArray> files = {{text("Theme"), "mine"}};
    QCOMPARE(filesBelow(repository.path()), files);
}

void ThemeWriterTest::fileAsParentIsTold()
{
    const ThemeRepository repository;
    const QString file = repository.write(text("file"), "mine");
    const QString problem = writeTheme(smallTheme(), file + text("/Theme"));
    QVERIFY2(problem.contains(file), qPrintable(problem));
}

void ThemeWriterTest::failureLeavesTheFormerTheme()
{
    const Repository repository;
    const auto before = filesBelow(repository.path());
    ThemeDefinition theme = otherTheme();
    theme.font.files = QStringList{repository.path(text("none.ttf"))};
    const QString problem = writeTheme(theme, repository.theme());
    QVERIFY2(problem.contains(text("none.ttf")), qPrintable(problem));
    QCOMPARE(filesBelow(repository.path()), before);

    // A file that cannot be written, in the midst of those that can.
    const QByteArray longName = QByteArray("x").repeated(252);
    theme = otherTheme();
    theme.name = QString::fromLatin1(longName + longName);
    QVERIFY(!writeTheme(theme, repository.theme()).isEmpty());
    QCOMPARE(filesBelow(repository.path()), before);
}

void ThemeWriterTest::readOnlyRepositoryLeavesTheFormerTheme()
{
    const OrdinaryUser user;
    const Repository repository;
    const auto before = filesBelow(repository.path());
    QVERIFY(QFile::setPermissions(repository.path(), QFile::ReadOwner | QFile::ExeOwner));
    const QString problem = writeTheme(otherTheme(), repository.theme());
    QVERIFY2(problem.contains(repository.path()), qPrintable(problem));
    QCOMPARE(filesBelow(repository.path()), before);
    QVERIFY(QFile::setPermissions(repository.path(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void ThemeWriterTest::immovableThemeIsLeftAlone()
{
    // A folder can only be moved into another one when it may be written to.
    const OrdinaryUser user;
    const Repository repository;
    const auto before = filesBelow(repository.path());
    QVERIFY(QFile::setPermissions(repository.theme(), QFile::ReadOwner | QFile::ExeOwner));
    const QString problem = writeTheme(otherTheme(), repository.theme());
    QVERIFY2(problem.contains(repository.theme()), qPrintable(problem));
    QCOMPARE(filesBelow(repository.path()), before);
    QVERIFY(QFile::setPermissions(repository.theme(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void ThemeWriterTest::unusableNamesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("a path") << text("a/b");
    QTest::newRow("the folder above") << text("..");
}

void ThemeWriterTest::unusableNamesAreRefused()
{
    QFETCH(const QString, name);
    const ThemeRepository repository;
    ThemeDefinition theme = smallTheme();
    theme.name = name;
    const QString problem = writeTheme(theme, repository.path(text("Theme")));
    QVERIFY2(problem.startsWith(text("the name ")), qPrintable(problem));
    QVERIFY(filesBelow(repository.path()).isEmpty());
}

QTEST_GUILESS_MAIN(ThemeWriterTest)
#include "ThemeWriterTest.moc"
