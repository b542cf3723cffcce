#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

/// The views of an object, made when the first one is asked for; safe from several threads.
template<typename Views>
Views& ViewsOf(std::unique_ptr<Views>& aViews)
{
    static std::mutex making;
    const std::lock_guard lock(making);
    if (aViews == nullptr) {
        aViews = std::make_unique<Views>();
    }
    return *aViews;
}

/// Fills a view when it is first asked for, under the lock of the views that it belongs to.
template<typename Views, typename View, typename Fill>
const View* OnFirstUse(Views& aViews, std::optional<View>& aView, Fill aFill)
{
    const std::lock_guard lock(aViews.guard);
    if (!aView.has_value()) {
        View made;
        aFill(made);
        aView.emplace(std::move(made));
    }
    return &*aView;
}

}  // namespace ORMO::SensorModel::CSM::Detail
