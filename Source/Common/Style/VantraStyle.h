#pragma once

// The one style of an application: a proxy over "Fusion" that measures and paints every standard control from
// the theme. What it doesn't list goes to Fusion.
//
//     QApplication app(argc, argv);
//     VantraFont::loadApplicationFonts();
//     VantraStyleTheme::loadGlobalConfig("base", "blue");
//     QApplication::setStyle(new VantraStyle); // the application owns it
//
// The theme is read at every paint and nothing of it is kept here, so a reloaded theme shows when a control
// next paints. Plain Qt controls and plain style options are painted like this library's own, with the
// defaults of the fields that the records of StyleOptions/ add. Any number of styles may exist, and a style
// may go before its widgets. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QProxyStyle>

#include <chrono>
#include <memory>
#include <unordered_map>

class VantraStyleHelperButton;
class VantraStyleHelperCheckBox;
class VantraStyleHelperComboBox;
class VantraStyleHelperFrame;
class VantraStyleHelperGroupBox;
class VantraStyleHelperItemView;
class VantraStyleHelperLineEdit;
class VantraStyleHelperMenu;
class VantraStyleHelperProgressBar;
class VantraStyleHelperScrollBar;
class VantraStyleHelperSlider;
class VantraStyleHelperSpinBox;
class VantraStyleHelperSplitter;
class VantraStyleHelperTabBar;
class VantraStyleHelperToolButton;
class VantraStyleTheme;

class VTWIDGETSLITE_EXPORT VantraStyle : public QProxyStyle
{
    Q_OBJECT

public:
    VantraStyle();
    ~VantraStyle() override;

    // VantraStyleTheme::instance().
    static const VantraStyleTheme &theme();

    // Milliseconds since the widget's animation began: 0 on its first call, which also has the widget
    // repainted every 33 ms from then on. That ends when the widget hasn't asked for 16.5 s, is unpolished or
    // destroyed. Always 0 without a widget.
    std::chrono::milliseconds animationTime(const QWidget *widget) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    void polish(QPalette &palette) override;
    void polish(QApplication *application) override;
    void polish(QWidget *widget) override;
    void unpolish(QApplication *application) override;
    void unpolish(QWidget *widget) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                         const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                           const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

protected:
    // Repaints the animated widgets and forgets the silent ones.
    void onAnimationUpdate();

private:
    struct AnimationEntry
    {
        std::chrono::steady_clock::time_point startTime;
        std::chrono::steady_clock::time_point lastQueryTime;
        QPointer<QWidget> widget; // null when another filter kept the widget's end from this style
    };

    // Starts the timer once there is an application: a style may be made and set before that, when there is
    // no event loop for a timer to run in.
    void ensureAnimationTimer();

    // Each answers whether it handled the call; what they leave goes to Fusion.
    bool drawOwnPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const;
    bool drawOwnControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const;
    bool drawOwnComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const;
    bool drawMenuElement(ControlElement element, const QStyleOption *option, QPainter *painter,
                         const QWidget *widget) const;
    bool drawCheckLabel(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const;
    bool drawArrowIndicator(Qt::ArrowType type, const QStyleOption *option, QPainter *painter) const;

    // The order is that of construction; they end in reverse, before the base.
    std::unique_ptr<VantraStyleHelperCheckBox> mHelperCheckBox;
    std::unique_ptr<VantraStyleHelperFrame> mHelperFrame;
    std::unique_ptr<VantraStyleHelperSlider> mHelperSlider;
    std::unique_ptr<VantraStyleHelperButton> mHelperButton;
    std::unique_ptr<VantraStyleHelperToolButton> mHelperToolButton;
    std::unique_ptr<VantraStyleHelperScrollBar> mHelperScrollBar;
    std::unique_ptr<VantraStyleHelperProgressBar> mHelperProgressBar;
    std::unique_ptr<VantraStyleHelperItemView> mHelperItemView;
    std::unique_ptr<VantraStyleHelperLineEdit> mHelperLineEdit;
    std::unique_ptr<VantraStyleHelperComboBox> mHelperComboBox;
    std::unique_ptr<VantraStyleHelperSplitter> mHelperSplitter;
    std::unique_ptr<VantraStyleHelperTabBar> mHelperTabBar;
    std::unique_ptr<VantraStyleHelperSpinBox> mHelperSpinBox;
    std::unique_ptr<VantraStyleHelperMenu> mHelperMenu;
    std::unique_ptr<VantraStyleHelperGroupBox> mHelperGroupBox;

protected:
    QTimer mAnimationTimer; // 33 ms; how long a silent widget stays follows from its interval

private:
    mutable std::unordered_map<const QWidget *, AnimationEntry> mAnimations;
};
