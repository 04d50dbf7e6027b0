#include "VTPresetManager.h"

VTPresetManager::VTPresetManager() = default;

VTPresetManager::~VTPresetManager() = default;

void VTPresetManager::addCategory(VTString inName)
{
    mCategories.push_back(inName);
}

int VTPresetManager::categoryCount() const
{
    return static_cast<int>(mCategories.size());
}
