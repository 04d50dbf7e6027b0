#pragma once

// A stock widget that paints itself as if the pointer or the keyboard were there: the real widget with its
// real paint code, whose option gets some state flags added and others taken away.
//
//     auto *hovered = new StateSample<QPushButton, QStyleOptionButton>(QStyle::State_MouseOver);
//     hovered->setText("Hovered");
//
// A disabled sample drops the flags that only an enabled widget can have.

#include <QtWidgets/QStyleOption>

#include <utility>

template <typename Widget, typename Option>
class StateSample : public Widget
{
public:
    explicit StateSample(QStyle::State inAdded, QStyle::State inRemoved = QStyle::State_None)
        : mAdded(inAdded), mRemoved(inRemoved)
    {
        this->setFocusPolicy(Qt::NoFocus);
    }

protected:
    void initStyleOption(Option *ioOption) const override
    {
        Widget::initStyleOption(ioOption);
        if (this->isEnabled()) {
            ioOption->state |= mAdded;
            ioOption->state &= ~mRemoved;
        }
    }

private:
    QStyle::State mAdded;
    QStyle::State mRemoved;
};

// The states that need a pointer or a keyboard, with their captions.
struct SampleState
{
    const char *caption;
    QStyle::State added;
    QStyle::State removed;
};

inline constexpr SampleState kHovered = {"hovered", QStyle::State_MouseOver, QStyle::State_None};
inline constexpr SampleState kPressed = {
    "pressed", QStyle::State(QStyle::State_Sunken) | QStyle::State_MouseOver, QStyle::State_Raised};
inline constexpr SampleState kFocused = {
    "focused", QStyle::State(QStyle::State_HasFocus) | QStyle::State_KeyboardFocusChange, QStyle::State_None};

// Adds a sample for each of those states; inSetUp makes them alike, inPrefix begins their captions.
template <typename Widget, typename Option, typename Grid, typename SetUp>
void addStateSamples(Grid &ioGrid, SetUp inSetUp, const QString &inPrefix = QString())
{
    for (const SampleState &state : {kHovered, kPressed, kFocused}) {
        auto *sample = new StateSample<Widget, Option>(state.added, state.removed);
        inSetUp(sample);
        ioGrid.add(inPrefix + QLatin1String(state.caption), sample);
    }
}
