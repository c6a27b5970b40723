#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <states/ElementSample.h>
#include <support/pictures/PictureSheet.h>

class QStyle;

/// Which pictures of a family's samples stand on a sheet.
enum class SheetStates { All, First };

/// Adds the pictures of \a family by \a style to \a sheet: a row for each sample, or one for all
/// when there is but one picture of each.
void addPictures(PictureSheet &sheet, const TARN::Gallery::ElementFamily &family,
                 const QStyle &style, Qt::LayoutDirection direction = Qt::LeftToRight,
                 SheetStates states = SheetStates::All);

/// Compares \a sheet with the reference of this \a name, of \a theme and of the scale of this
/// process, and writes down how they differ. Returns what is to be said about that. Where the
/// references are to be updated, it becomes the reference instead.
QStringList compareWithReference(const PictureSheet &sheet, const QString &theme,
                                 const QString &name);

/// Sets the scale and the fonts of the references, whatever the desktop is like. To be called
/// before there is an application.
void setReferenceEnvironment(const char *scale);
