#include "ButtonTexts.h"

#include "TextRecorder.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QToolButton>

namespace {

// The margins of a command link, which it asks no style for.
constexpr int CommandLinkLeft = 7;
constexpr int CommandLinkRight = 4;
constexpr int CommandLinkIconSpacing = 6;
constexpr int CommandLinkVertical = 10;
constexpr qreal CommandLinkPoints = 9;

void recordCommandLink(const QCommandLinkButton &button, TextRecorder &recorder)
{
    QFont font = button.font();
    font.setPointSizeF(CommandLinkPoints);
    const QFontMetrics description(font, &button);
    const QFontMetrics title(boldened(font), &button);
    const int icon = button.icon().actualSize(button.iconSize()).width() + CommandLinkIconSpacing;
    QSize room = button.size() - QSize(CommandLinkLeft + icon + CommandLinkRight,
                                       CommandLinkVertical + CommandLinkVertical);
    recorder.add("command link", button.text(), sizeOf(button.text(), title), room);
    room.rheight() -= title.height();
    recorder.add("command link", button.description(),
                 wrappedSizeOf(button.description(), description, room.width()), room);
}

void recordPushButton(const QPushButton &button, TextRecorder &recorder)
{
    const auto option = optionOf<QStyleOptionButton>(button);
    QSize room = roomFor(QStyle::SE_PushButtonContents, option, button);
    room.rwidth() -= iconWidth(option.icon, option.iconSize);
    if (button.menu()) {
        room.rwidth() -= metricOf(QStyle::PM_MenuButtonIndicator, option, button);
    }
    recorder.addLine("push button", button.text(), room);
}

/// Returns the room for the label of a tool button: without its frame, and without the arrow of
/// its menu.
QSize toolButtonRoom(const QToolButton &button, const QStyleOptionToolButton &option)
{
    const int frame = metricOf(QStyle::PM_DefaultFrameWidth, option, button);
    QSize room = roomFor(QStyle::CC_ToolButton, QStyle::SC_ToolButton, option, button) -
                 QSize(2 * frame, 2 * frame);
    const bool hasPlainMenu = option.features.testFlag(QStyleOptionToolButton::HasMenu) &&
                              !option.features.testFlag(QStyleOptionToolButton::Menu);
    if (hasPlainMenu && !button.property("no menu arrow").toBool()) {
        room.rwidth() -= metricOf(QStyle::PM_MenuButtonIndicator, option, button);
    }
    return room;
}

void recordToolButton(const QToolButton &button, TextRecorder &recorder)
{
    const auto option = optionOf<QStyleOptionToolButton>(button);
    QSize room = toolButtonRoom(button, option);
    const bool hasIcon = !option.icon.isNull();
    if (hasIcon && option.toolButtonStyle == Qt::ToolButtonIconOnly) {
        return;
    }
    if (hasIcon && option.toolButtonStyle == Qt::ToolButtonTextUnderIcon) {
        room.rheight() -= option.iconSize.height() + iconSpacing - 2;
    } else if (hasIcon && option.toolButtonStyle == Qt::ToolButtonTextBesideIcon) {
        room.rwidth() -= option.iconSize.width() + iconSpacing;
    }
    recorder.addLine("tool button", option.text, room);
}

void recordCheckable(const QAbstractButton &button, const QStyleOptionButton &option,
                     QStyle::SubElement contents, TextRecorder &recorder)
{
    QSize room = roomFor(contents, option, button);
    room.rwidth() -= iconWidth(option.icon, option.iconSize);
    recorder.addLine(contents == QStyle::SE_CheckBoxContents ? "check box" : "radio button",
                     button.text(), room);
}

void recordToolBoxButton(const QAbstractButton &button, TextRecorder &recorder)
{
    QStyleOptionToolBox option;
    option.initFrom(&button);
    option.text = button.text();
    option.icon = button.icon();
    QSize room = roomFor(QStyle::SE_ToolBoxTabContents, option, button);
    const int iconExtent = metricOf(QStyle::PM_SmallIconSize, option, button);
    room.rwidth() -= iconWidth(button.icon(), QSize(iconExtent, iconExtent));
    recorder.addLine("tool box tab", button.text(), room);
}

} // namespace

void recordButton(const QAbstractButton &button, TextRecorder &recorder)
{
    if (const auto *box = qobject_cast<const QCheckBox *>(&button)) {
        recordCheckable(*box, optionOf<QStyleOptionButton>(*box), QStyle::SE_CheckBoxContents,
                        recorder);
    } else if (const auto *radio = qobject_cast<const QRadioButton *>(&button)) {
        recordCheckable(*radio, optionOf<QStyleOptionButton>(*radio),
                        QStyle::SE_RadioButtonContents, recorder);
    } else if (button.inherits("QToolBoxButton")) {
        recordToolBoxButton(button, recorder);
    } else {
        recordAs(button, recorder, recordCommandLink) ||
            recordAs(button, recorder, recordPushButton) ||
            recordAs(button, recorder, recordToolButton);
    }
}
