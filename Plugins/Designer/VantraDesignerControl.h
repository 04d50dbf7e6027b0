#pragma once

// What Qt Designer and QUiLoader ask about one control. All answers come from one table.

#include <QtCore/QList>
#include <QtCore/QSize>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

class VantraDesignerControl final : public QDesignerCustomWidgetInterface
{
public:
    struct Entry
    {
        const char *name; // of the class, and of its header in the folder Controls
        const char *base; // Qt's class, by which uic knows about items, texts and the like
        const char *toolTip;
        const char *picture;    // of the library's resources, a mask
        QSize size;             // of a control that has just been dropped, in pixels; invalid for its own
        const char *properties; // what else it has then, in the form's XML
        const char *notes;      // how Designer edits some of the texts, in the form's XML
        bool isContainer;
        QWidget *(*make)(QWidget *inParent);
    };

    static const QList<Entry> &entries();

    explicit VantraDesignerControl(const Entry &inEntry);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;

    // In the colour of the program's text.
    QIcon icon() const override;

    bool isContainer() const override;
    QString domXml() const override;

    // Loads fonts and theme first, unless the program has them.
    QWidget *createWidget(QWidget *inParent) override;

    // Only Designer calls this, QUiLoader doesn't. From then on the limits of a number field push each other,
    // as those of Qt's spin boxes do: between two edits they would otherwise cross, which stops the process.
    void initialize(QDesignerFormEditorInterface *) override;
    bool isInitialized() const override { return mIsInDesigner; }

private:
    Entry mEntry;
    bool mIsInDesigner = false;
};
