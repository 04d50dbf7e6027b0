#pragma once

// Base of objects that several owners share by counting references. The last owner to let go ends the object.
//
//     auto *info = new JobInfo;   // class JobInfo : public CBaseCore; count 1, owned by the caller
//     info->AddRef();             // a second owner
//     info->Release();            // as often as there are owners, then the object is gone
//
// Owners may live in different threads: the count is atomic, and what an owner wrote before its Release is
// seen by the destructor, whichever thread runs it.

#include "VTCore19Export.h"

#include <atomic>

class VTCORE19_EXPORT CBaseCore
{
public:
    // One reference, which belongs to whoever made the object.
    CBaseCore();

    CBaseCore(const CBaseCore &) = delete;
    CBaseCore &operator=(const CBaseCore &) = delete;

    // Only for those who hold a reference.
    virtual void AddRef();

    // Gives one reference back; the last one deletes the object.
    virtual void Release();

protected:
    // Not to be called by owners: they release.
    virtual ~CBaseCore();

private:
    std::atomic<int> mRefCount{1};
};
