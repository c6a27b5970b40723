#include "pages/Arrangement.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace TARN::Gallery {

namespace {

template <typename Layout>
Layout *bareLayout(QWidget *parent)
{
    auto *layout = new Layout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

QLabel *sectionTitle(const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QWidget *row(const QList<QWidget *> &widgets)
{
    auto *widget = new QWidget;
    auto *layout = bareLayout<QHBoxLayout>(widget);
    for (QWidget *item : widgets) {
        layout->addWidget(item);
    }
    layout->addStretch();
    return widget;
}

QWidget *evenRow(const QList<QWidget *> &widgets)
{
    auto *widget = new QWidget;
    auto *layout = bareLayout<QHBoxLayout>(widget);
    for (QWidget *item : widgets) {
        layout->addWidget(item, 1);
    }
    return widget;
}

QWidget *column(const QList<QWidget *> &widgets)
{
    auto *widget = new QWidget;
    auto *layout = bareLayout<QVBoxLayout>(widget);
    for (QWidget *item : widgets) {
        layout->addWidget(item);
    }
    return widget;
}

QWidget *form(const QList<QPair<QString, QWidget *>> &fields)
{
    auto *widget = new QWidget;
    auto *layout = bareLayout<QFormLayout>(widget);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const auto &field : fields) {
        layout->addRow(field.first, field.second);
    }
    return widget;
}

} // namespace TARN::Gallery
