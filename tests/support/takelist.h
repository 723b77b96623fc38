#pragma once

#include <ZetoCameraApi.h>

#include <vector>

/// The elements of a list of the camera library, which is released.
template <typename T>
std::vector<T*> takeList(ZetoCam::List<T>* list)
{
    std::vector<T*> elements;
    for (T* each = list->GetFirst(); each; each = list->GetNext())
        elements.push_back(each);
    list->Release();
    return elements;
}
