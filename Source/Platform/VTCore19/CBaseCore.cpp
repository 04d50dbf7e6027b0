#include "CBaseCore.h"

CBaseCore::CBaseCore() = default;

CBaseCore::~CBaseCore() = default;

void CBaseCore::AddRef()
{
    mRefCount.fetch_add(1, std::memory_order_relaxed);
}

void CBaseCore::Release()
{
    if (mRefCount.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        delete this;
    }
}
