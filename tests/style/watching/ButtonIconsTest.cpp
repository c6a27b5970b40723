#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <support/NamedWidget.h>
#include <support/PaintCounter.h>
#include <support/Text.h>
#include <support/themes/IconTheme.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;

namespace {

/// A button of the toolkit's private class, which is known by its name only.
class IconButton : public QToolButton
{
public:
    void *qt_metacast(const char *className) override
    {
        return qstrcmp(className, "QLineEditIconButton") == 0 ? this
                                                              : QToolButton::qt_metacast(className);
    }
};

QToolButton *clearButton(const QLineEdit &edit)
{
    for (auto *button : edit.findChildren<QToolButton *>()) {
        if (button->inherits("QLineEditIconButton")) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

/// The icons that are tinted when they are painted.
class ButtonIconsTest : public QObject
{
    Q_OBJECT

private:
    UniqueTheme m_theme;
    IconTheme m_icons;
    BaseStyle *m_style = nullptr;

private Q_SLOTS:
    void initTestCase()
    {
        m_icons.add(text("action.close"), referenceForeground);
        m_icons.add(text("star"), referenceForeground);
        m_icons.add(text("red"), Qt::red);
        m_style = new BaseStyle;
        QPalette palette = m_style->standardPalette();
        palette.setColor(QPalette::WindowText, QColor(1, 2, 3));
        palette.setColor(QPalette::ButtonText, QColor(4, 5, 6));
        palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(7, 8, 9));
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(10, 11, 12));
        m_style->setPalette(palette);
        QApplication::setStyle(m_style);
    }

    void clearButtonIsTinted()
    {
        QLineEdit edit(text("text"));
        edit.setClearButtonEnabled(true);
        QToolButton *button = clearButton(edit);
        QVERIFY(button);
        edit.grab();
        QCOMPARE(colorOf(button->icon()), QColor(1, 2, 3));

        button->setAttribute(Qt::WA_UnderMouse);
        edit.grab();
        QCOMPARE(m_theme.nameOf(colorOf(button->icon())), text("MainColor"));

        edit.setEnabled(false);
        button->setAttribute(Qt::WA_UnderMouse);
        edit.grab();
        QCOMPARE(colorOf(button->icon()), QColor(7, 8, 9));

        edit.setEnabled(true);
        button->setAttribute(Qt::WA_UnderMouse, false);
        edit.grab();
        QCOMPARE(colorOf(button->icon()), QColor(1, 2, 3));
    }

    void clearButtonFollowsItsPalette()
    {
        QLineEdit edit(text("text"));
        edit.setClearButtonEnabled(true);
        edit.grab();
        QPalette palette = edit.palette();
        palette.setColor(QPalette::WindowText, QColor(90, 80, 70));
        edit.setPalette(palette);
        edit.grab();
        QCOMPARE(colorOf(clearButton(edit)->icon()), QColor(90, 80, 70));
    }

    void iconOfAnAddedActionStays()
    {
        QLineEdit edit(text("text"));
        QAction *action =
            edit.addAction(QIcon::fromTheme(text("red")), QLineEdit::TrailingPosition);
        QToolButton *button = clearButton(edit);
        QCOMPARE(button->defaultAction(), action);
        edit.grab();
        QCOMPARE(colorOf(button->icon()), QColor(Qt::red));
        button->setAttribute(Qt::WA_UnderMouse);
        edit.grab();
        QCOMPARE(colorOf(button->icon()), QColor(Qt::red));
        QCOMPARE(colorOf(action->icon()), QColor(Qt::red));
    }

    void iconButtonWithoutAnActionIsTinted()
    {
        IconButton button;
        button.setIcon(QIcon::fromTheme(text("red")));
        button.grab();
        QCOMPARE(colorOf(button.icon()), QColor(1, 2, 3));
    }

    void otherButtonsKeepTheirIcons()
    {
        QToolButton button;
        button.setIcon(QIcon::fromTheme(text("star")));
        QPaintEvent event{QRect()};
        m_style->eventFilter(&button, &event);
        QCOMPARE(colorOf(button.icon()), referenceForeground);
        QVERIFY(!button.property("originalIcon").isValid());
    }

    void commandLink_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("underMouse");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QColor>("expected");
        const QColor plain(4, 5, 6);
        const QColor disabled(10, 11, 12);
        const QColor hovered =
            BaseStyle::getBrush(text("ButtonUncheckedHoverForegroundBrush"), true).color();
        QTest::newRow("at rest") << true << false << false << false << plain;
        QTest::newRow("hovered") << true << true << false << false << hovered;
        QTest::newRow("hovered and checked") << true << true << true << false << plain;
        QTest::newRow("hovered and down") << true << true << false << true << plain;
        QTest::newRow("checked") << true << false << true << false << plain;
        QTest::newRow("disabled") << false << false << false << false << disabled;
        QTest::newRow("disabled and hovered") << false << true << false << false << disabled;
    }

    void commandLink()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, underMouse);
        QFETCH(bool, checked);
        QFETCH(bool, down);
        QFETCH(QColor, expected);
        QCommandLinkButton button(text("Continue"));
        button.setIcon(QIcon::fromTheme(text("star")));
        button.setCheckable(true);
        button.setEnabled(enabled);
        button.setChecked(checked);
        button.setDown(down);
        button.ensurePolished();
        QVERIFY(!button.property("originalIcon").isValid());
        button.setAttribute(Qt::WA_UnderMouse, underMouse);
        button.grab();
        QCOMPARE(colorOf(button.icon()), expected);
        QCOMPARE(button.property("originalIcon").userType(), int(QMetaType::QIcon));
        QCOMPARE(colorOf(button.property("originalIcon").value<QIcon>()), referenceForeground);
    }

    void commandLinkKnownByNameOnly()
    {
        Named<QPushButton> button("QCommandLinkButton");
        button.setIcon(QIcon::fromTheme(text("star")));
        button.grab();
        QCOMPARE(colorOf(button.icon()), QColor(4, 5, 6));

        // What is no button has no icon.
        NamedWidget widget("QCommandLinkButton");
        widget.grab();
        QVERIFY(!widget.property("originalIcon").isValid());
    }

    void commandLinkIsTintedFromItsFirstIcon()
    {
        QCommandLinkButton button(text("Continue"));
        button.setIcon(QIcon::fromTheme(text("star")));
        button.grab();
        button.setAttribute(Qt::WA_UnderMouse);
        button.grab();
        QCOMPARE(m_theme.nameOf(colorOf(button.icon())),
                 text("ButtonUncheckedHoverForegroundBrush"));
        button.setAttribute(Qt::WA_UnderMouse, false);
        button.setIcon(QIcon::fromTheme(text("red")));
        button.grab();
        QCOMPARE(colorOf(button.icon()), QColor(4, 5, 6));
        QCOMPARE(colorOf(button.property("originalIcon").value<QIcon>()), referenceForeground);
    }

    void commandLinkTakesTheStoredIcon()
    {
        QCommandLinkButton button(text("Continue"));
        button.setProperty("originalIcon", QIcon::fromTheme(text("red")));
        button.setIcon(QIcon::fromTheme(text("star")));
        button.grab();
        QCOMPARE(colorOf(button.icon()), QColor(Qt::red));
    }

    void commandLinkWithoutAnIcon()
    {
        QCommandLinkButton button(text("Continue"));
        button.setIcon(QIcon());
        button.grab();
        QVERIFY(button.icon().isNull());
        QVERIFY(!button.property("originalIcon").isValid());
    }

    // Setting an icon asks for another painting.
    void tintingComesToRest()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *edit = new QLineEdit(text("text"));
        auto *link = new QCommandLinkButton(text("Continue"));
        edit->setClearButtonEnabled(true);
        link->setIcon(QIcon::fromTheme(text("star")));
        layout->addWidget(edit);
        layout->addWidget(link);
        QToolButton *clear = clearButton(*edit);
        PaintCounter clearPaintings(*clear);
        PaintCounter linkPaintings(*link);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY(clearPaintings.count > 0 && linkPaintings.count > 0);
        const auto isPaintedAgainAndAgain = [&window] {
            // More often than either may have to be painted.
            bool isDone = true;
            for (int round = 0; round < 6; ++round) {
                isDone = isDone && isPainted(window);
            }
            return isDone;
        };
        QVERIFY(isPaintedAgainAndAgain());
        for (const bool underMouse : {true, false}) {
            clear->setAttribute(Qt::WA_UnderMouse, underMouse);
            link->setAttribute(Qt::WA_UnderMouse, underMouse);
            clearPaintings.count = 0;
            linkPaintings.count = 0;
            clear->update();
            link->update();
            QVERIFY(isPaintedAgainAndAgain());
            QVERIFY2(clearPaintings.count >= 1 && clearPaintings.count <= 3,
                     qPrintable(QString::number(clearPaintings.count)));
            QVERIFY2(linkPaintings.count >= 1 && linkPaintings.count <= 3,
                     qPrintable(QString::number(linkPaintings.count)));
        }
    }
};

QTEST_MAIN(ButtonIconsTest)
#include "ButtonIconsTest.moc"
