#pragma once

#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/QtUserControl.h"

#include <memory>
#include <utility>

namespace zqbchwcx::qt {

/// A view with the site that it lives in, which must not end before it.
template <class View>
struct HostedView {
    explicit HostedView(ControlWidget& window) : site(window), view(site) {}

    QtUserControl site;
    View view;
};

template <class View>
std::shared_ptr<View> MakeView(ControlWidget& window)
{
    auto hosted = std::make_shared<HostedView<View>>(window);
    auto* view = &hosted->view;
    return {std::move(hosted), view};
}

} // namespace zqbchwcx::qt
