#pragma once

// One open photo: its file, what the user has decided about it, and the history of that. GUI thread only.

#include "PhotoAdjustments.h"

#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtGui/QUndoStack>

class Photo : public QObject
{
    Q_OBJECT

public:
    // With the size of the upright photo, as its file says.
    Photo(const QString &inPath, const QSize &inSize, QObject *inParent);

    const QString &path() const { return mPath; }
    QString name() const;
    const QSize &size() const { return mSize; }

    const PhotoAdjustments &adjustments() const { return mAdjustments; }
    QUndoStack *history() { return &mHistory; }

    // Makes one step of the history. Changes under the same name join into one step until endStep().
    void change(const QString &inName, const PhotoAdjustments &inAdjustments);
    void endStep() { ++mStep; }

    bool isEdited() const { return mAdjustments != PhotoAdjustments(); }
    bool isExported() const { return mExported && mExportedAdjustments == mAdjustments; }
    bool waitsForExport() const { return isEdited() && !isExported(); }
    void setExported(const PhotoAdjustments &inAdjustments);

    // A small picture of the photo as it came, null until it is loaded.
    const QImage &thumbnail() const { return mThumbnail; }
    void setThumbnail(const QImage &inThumbnail);

    // The small picture with all adjustments, made when it is first asked for.
    const QPixmap &preview() const;

signals:
    void adjustmentsChanged();

    // Anything that a list of photos shows.
    void changed();

private:
    class Step;

    void setAdjustments(const PhotoAdjustments &inAdjustments);

    const QString mPath;
    const QSize mSize;
    PhotoAdjustments mAdjustments;
    PhotoAdjustments mExportedAdjustments;
    bool mExported = false;
    QUndoStack mHistory;
    int mStep = 0;
    QImage mThumbnail;
    QImage mSmallThumbnail;
    mutable QPixmap mPreview;
};
