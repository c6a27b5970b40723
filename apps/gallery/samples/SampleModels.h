#pragma once

class QStandardItemModel;
class QObject;

namespace TARN::Gallery {

/// Returns a table of measured particles: numbers, a checkable label and one row that is disabled.
QStandardItemModel *particleModel(QObject *parent);

/// Returns a tree of a project: samples, their images and what was found in them. Icons, checkable
/// layers and one entry that is disabled.
QStandardItemModel *projectModel(QObject *parent);

/// Returns a list of images with thumbnails; the last entry is disabled.
QStandardItemModel *imageModel(QObject *parent);

} // namespace TARN::Gallery
