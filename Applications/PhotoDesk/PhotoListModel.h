#pragma once

// The open photos, and how the list at the window's left shows them. Thumbnails come from worker threads, one
// after the other. GUI thread only.

#include "Controls/VantraStyledItemDelegate.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QThreadPool>

#include <functional>

class Photo;

class PhotoListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Roles { PhotoRole = Qt::UserRole };

    explicit PhotoListModel(QObject *inParent = nullptr);
    ~PhotoListModel() override;

    // Owns the photo. One that is open already is answered instead of a second one.
    Photo *add(const QString &inPath, const QSize &inSize);
    void remove(Photo *inPhoto);

    const QList<Photo *> &photos() const { return mPhotos; }
    QList<Photo *> photosToExport() const;
    Photo *photo(const QModelIndex &inIndex) const;
    QModelIndex indexOf(Photo *inPhoto) const { return index(static_cast<int>(mPhotos.indexOf(inPhoto))); }

    int rowCount(const QModelIndex &inParent = {}) const override;
    QVariant data(const QModelIndex &inIndex, int inRole) const override;

private:
    void loadThumbnail(Photo *inPhoto);

    QList<Photo *> mPhotos;
    QThreadPool mLoaders;
};

// A row with thumbnail and name, and at its end whether the photo is edited, and exported since.
class PhotoDelegate : public VantraStyledItemDelegate
{
    Q_OBJECT

public:
    using VantraStyledItemDelegate::VantraStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &inOption, const QModelIndex &inIndex) const override;
    void paint(QPainter *inPainter, const QStyleOptionViewItem &inOption,
               const QModelIndex &inIndex) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *outOption, const QModelIndex &inIndex) const override;
};
