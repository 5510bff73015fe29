// Writes the class reference: one Markdown page for each class the plugin registers,
// made from what the simulated host holds after loading it and the written entries.
//   reference_pages --plugin BigNumberZQT.so --prose docs/reference --out DIR
#include <cstring>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "docs/generator/class_page.h"
#include "host/host.h"

namespace {

const char * const kUsage = "usage: reference_pages --plugin LIBRARY --prose FOLDER --out FOLDER";

} // namespace

int main(int argc, char ** argv)
{
    std::string plugin, prose, out;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (!std::strcmp(argv[i], "--plugin"))
            plugin = argv[i + 1];
        else if (!std::strcmp(argv[i], "--prose"))
            prose = argv[i + 1];
        else if (!std::strcmp(argv[i], "--out"))
            out = argv[i + 1];
    }
    if (plugin.empty() || prose.empty() || out.empty()) {
        std::cerr << kUsage << "\n";
        return 2;
    }
    try {
        hostsim::Host host;
        std::string error;
        if (!host.LoadPlugin(plugin, error))
            throw std::runtime_error(error);
        size_t waiting = 0;
        for (const hostsim::ClassInfo * info : host.PluginClasses()) {
            const reference::ClassPage page = RenderClassPage(*info, reference::ReadClassProse(prose, info->name));
            const std::string path = out + "/" + info->name + ".md";
            std::ofstream file(path, std::ios::binary);
            file << page.markdown;
            if (!file)
                throw std::runtime_error("cannot write " + path);
            waiting += page.waiting.size();
        }
        std::cout << "reference_pages: " << waiting << " written entries wait for their members\n";
    } catch (const std::exception & e) {
        std::cerr << "reference_pages: " << e.what() << "\n";
        return 1;
    }
    return 0;
}
