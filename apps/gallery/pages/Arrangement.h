#pragma once

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>

class QLabel;
class QWidget;

namespace TARN::Gallery {

/// Returns a title for the samples below it.
QLabel *sectionTitle(const QString &text);

/// Returns a widget that holds \a widgets next to each other, each at its own width.
QWidget *row(const QList<QWidget *> &widgets);

/// Returns a widget that holds \a widgets next to each other, filling the width in equal shares.
QWidget *evenRow(const QList<QWidget *> &widgets);

/// Returns a widget that holds \a widgets below each other, at the full width.
QWidget *column(const QList<QWidget *> &widgets);

/// Returns a form of labelled \a fields.
QWidget *form(const QList<QPair<QString, QWidget *>> &fields);

} // namespace TARN::Gallery
