#pragma once

// The one way from an incoming option to a record of this library. A record is used in place; a plain Qt
// option of the same type is copied into a local record, whose added fields keep their defaults.
//
//     const VantraStyleOptionCast<VantraStyleOptionButton> button(option);
//     if (button) {
//         paint(*button);
//     }
//
// Qt's own option classes may be asked for too. The cast holds a pointer to the incoming option, or owns the
// copy; it lives on the stack of one call.

#include <QtWidgets/QStyleOption>

#include <optional>
#include <type_traits>

template <typename Record>
class VantraStyleOptionCast
{
public:
    explicit VantraStyleOptionCast(const QStyleOption *inOption)
    {
        if (inOption == nullptr || inOption->type != static_cast<int>(Record::Type) ||
            inOption->version < 1) {
            return;
        }
        if (inOption->version >= static_cast<int>(Record::Version)) {
            mRecord = static_cast<const Record *>(inOption);
            return;
        }
        if constexpr (static_cast<int>(Record::Version) > 1) {
            upgrade(*static_cast<const typename Record::QtOption *>(inOption));
        }
    }

    Q_DISABLE_COPY_MOVE(VantraStyleOptionCast)

    explicit operator bool() const { return mRecord != nullptr; }
    const Record &operator*() const { return *mRecord; }
    const Record *operator->() const { return mRecord; }
    const Record *get() const { return mRecord; }

    // A record of the caller's own to change: the upgraded copy, or a copy of the incoming record.
    Record &writable()
    {
        if (!mLocal) {
            mRecord = &mLocal.emplace(*mRecord);
        }
        return *mLocal;
    }

private:
    template <typename QtOption>
    void upgrade(const QtOption &inOption)
    {
        if constexpr (std::is_constructible_v<Record, const QtOption &>) {
            mLocal.emplace(inOption);
        } else {
            // Assigning the Qt part leaves the record's own version as it is.
            static_cast<QtOption &>(mLocal.emplace()) = inOption;
        }
        mRecord = &*mLocal;
    }

    const Record *mRecord = nullptr;
    std::optional<Record> mLocal;
};
