#include "TSMPlugin.h"

#include "TSMWarning.h"

#include <memory>
#include <mutex>

/// The list and its lock. Made by whoever comes first, since plug-ins register from static constructors in any order,
/// and never destroyed, since they leave from static destructors.
class TSMPlugin::Impl
{
public:
    static Impl& Instance()
    {
        static Impl* const instance = new Impl;
        return *instance;
    }

    /// The list as it is now. A plug-in is asked for its name without the lock: it may itself look into the list.
    TSMPluginList Copy()
    {
        std::lock_guard<std::mutex> guard(m_lock);
        return *theList;
    }

    void Append(const TSMPlugin* aPlugin)
    {
        std::lock_guard<std::mutex> guard(m_lock);
        theList->push_back(aPlugin);
    }

    void Remove(const TSMPlugin* aPlugin)
    {
        std::lock_guard<std::mutex> guard(m_lock);
        theList->remove(aPlugin);
    }

    /// Null when no plug-in has this name.
    const TSMPlugin* Find(const std::string& aName)
    {
        for (const TSMPlugin* plugin : Copy()) {
            std::string name;
            const std::unique_ptr<TSMWarning> warning(plugin->getPluginName(name));
            if (name == aName) {
                return plugin;
            }
        }
        return nullptr;
    }

private:
    Impl()
    {
        theList = new TSMPluginList;
        theImpl = this;
    }

    std::mutex m_lock;
};

TSMPlugin::TSMPluginList* TSMPlugin::theList = nullptr;
TSMPlugin::Impl* TSMPlugin::theImpl = nullptr;

TSMPlugin::TSMPlugin()
{
    Impl::Instance().Append(this);
}

TSMPlugin::~TSMPlugin()
{
    Impl::Instance().Remove(this);
}

TSMWarning* TSMPlugin::getList(TSMPluginList*& aTSMPluginList)
{
    Impl::Instance();
    aTSMPluginList = theList;
    return nullptr;
}

TSMWarning* TSMPlugin::findPlugin(const std::string& pluginName, TSMPlugin*& aTSMPlugin)
{
    const TSMPlugin* const found = Impl::Instance().Find(pluginName);
    if (found == nullptr) {
        return new TSMWarning(TSMWarning::DATA_NOT_AVAILABLE, "No matching plugin found\n", "TSMPlugin::findPlugin");
    }
    aTSMPlugin = const_cast<TSMPlugin*>(found);
    return nullptr;
}

TSMWarning* TSMPlugin::removePlugin(const std::string& pluginName)
{
    const TSMPlugin* const found = Impl::Instance().Find(pluginName);
    if (found == nullptr) {
        throw TSMError(TSMError::UNKNOWN_ERROR, "Plugin Name Not Found", "removePlugin");
    }
    Impl::Instance().Remove(found);
    return nullptr;
}
