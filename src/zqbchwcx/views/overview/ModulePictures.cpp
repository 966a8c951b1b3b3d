#include "zqbchwcx/views/overview/ModulePictures.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/UpperCase.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"

namespace zqbchwcx {
void ModulePictures::Load(TextModule& textModule, const PictureStrip& strip)
{
    mcolWithoutPicture.clear();
    moImages = LoadStrip(textModule, strip);
}

const ImageList& ModulePictures::List() const
{
    return *G_Require(moImages, "The list of pictures");
}

std::string ModulePictures::KeyOf(const VxHWModule& oModule, std::string_view defaultKey) noexcept
{
    std::string key(defaultKey);
    G_Trap(msClassName, "P_GetModulePicName", [&] {
        std::string name = G_UpperCase(oModule.PictureName());
        if (name.starts_with("IDB_") || List().Contains(name) || AddFile(name)) key = std::move(name);
    });
    return key;
}

bool ModulePictures::AddFile(const std::string& name)
{
    if (name.empty() || mcolWithoutPicture.contains(name)) return false;
    std::string path = G_HWPicDir();
    if (!path.ends_with('\\')) path += '\\';
    if (moImages->AddFile(path + name + ".bmp", name)) return true;
    mcolWithoutPicture.insert(name);
    return false;
}

} // namespace zqbchwcx
