#pragma once

#include "app/HRFPictureLoader.h"
#include "store/HRFManagedObject.h"

#include <QWidget>

#include <vector>

class HRFMetaFile;
class HRFPlaylist;
class QLabel;
class QMimeData;
class QPainter;

/// The picture of the selected records: shows it, takes another that is dropped, pasted or chosen,
/// copies, saves and removes it.
class HRFArtworkPane : public QWidget
{
    Q_OBJECT
public:
    HRFArtworkPane(HRFPlaylist &list, QWidget *parent);

    /// Looks at the records again.
    void refresh();
    /// Also tries again to read a picture that could not be read.
    void reload();

    /// Writes a picture into the files of the selected records; an empty one removes theirs.
    void setArtwork(const QByteArray &image);

    // Commands:
    void choose();
    void paste();
    void copy() const;
    void save();
    void removeArtwork() { setArtwork({}); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool event(QEvent *event) override;

private:
    enum class State { NoRecords, Empty, One, Several };

    void take(const QMimeData &source);
    void takeFile(const QString &path);
    void setArtwork(const QByteArray &image, const std::vector<HRFMetaFile *> &files);
    std::vector<HRFMetaFile *> filesOf(const std::vector<HRFObjectID> &records) const;
    QString factsOf(const HRFMetaFile &file) const;
    QString placeholder() const;
    QRect pictureArea() const;
    /// These answer the frame of what they paint.
    QRect paintPicture(QPainter &painter, const QImage &image) const;
    QRect paintPlaceholder(QPainter &painter) const;
    const HRFPictureLoader::Picture *picture() const;
    void setDropTarget(bool isDropTarget);

    HRFPlaylist &m_list;
    HRFPictureLoader m_loader;
    QLabel *m_facts;
    State m_state = State::NoRecords;
    QString m_digest; ///< of the one picture
    bool m_isDropTarget = false;
    HRFBackgroundGroup m_reading;
    const HRFWeakSelf<HRFArtworkPane> m_weakSelf{this};
};
