#pragma once

#include "zqbchwcx/qt/QtToolkit.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QPixmap>

#include <map>
#include <memory>
#include <string>

namespace quillon_ed {

/// Pictures of module types for the window's own widgets: the ones that the racks show.
class ModulePictures {
public:
    explicit ModulePictures(std::shared_ptr<zqbchwcx::qt::QtToolkit> toolkit);

    /// All places of the module side by side, `scale` times the size in a rack.
    QPixmap Picture(const zqbchwcx::reference::ModuleType& type, double scale, double devicePixelRatio);

private:
    zqbchwcx::qt::QtImagePtr Image(const std::string& pictureName);

    std::shared_ptr<zqbchwcx::qt::QtToolkit> moToolkit;
    std::map<std::string, zqbchwcx::qt::QtImagePtr> mcolFiles;
};

} // namespace quillon_ed
