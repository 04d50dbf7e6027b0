#pragma once

// Holds the categories that the user's presets are sorted into, in the order of their adding. One thread.
//
//     VTPresetManager manager;
//     manager.addCategory(VTString("Black and white"));

#include "VTCore19Export.h"
#include "VTString.h"

#include <vector>

class VTCORE19_EXPORT VTPresetManager
{
public:
    VTPresetManager();
    ~VTPresetManager();

    void addCategory(VTString inName);
    int categoryCount() const;

private:
    Q_DISABLE_COPY_MOVE(VTPresetManager)

    std::vector<VTString> mCategories;
};
