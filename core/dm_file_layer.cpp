#include "core/dm_file_layer.h"

namespace dunmar {

namespace {

dm_file_layer* chosen = nullptr;

}  // namespace

dm_file_layer& dm_file_layer::current() {
    return chosen ? *chosen : system();
}

void dm_file_layer::set_current(dm_file_layer* layer) {
    chosen = layer;
}

dm_string dm_save_file_temp(const dm_string& path) {
    dm_string temp(path);
    temp.append(DM_W(".new"));
    return temp;
}

bool dm_save_file(const dm_string& path, const dm_utf8_str& text, bool overwrite) {
    if (path.empty())
        return false;
    dm_file_layer& layer = dm_file_layer::current();
    const dm_string temp = dm_save_file_temp(path);
    const dm_file_layer::handle file = layer.create(temp);
    bool ok = file != dm_file_layer::no_file;
    if (ok) {
        ok = layer.write(file, text.c_str(), text.length()) && layer.flush(file);
        ok = layer.close(file) && ok;
    }
    ok = ok && layer.rename(temp, path, overwrite);
    if (!ok)
        layer.remove(temp);
    return ok;
}

}  // namespace dunmar
