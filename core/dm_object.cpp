#include "core/dm_object.h"

#include "core/dm_format.h"
#include "core/dm_utf8_str.h"
#include "core/dm_xml_attributes.h"

namespace dunmar {
namespace {

// "<name attr="value" ...>\n"; attributes without a name are skipped.
bool write_tag(dm_utf8_str& out, const std::string& element_name,
               const dm_xml_attributes& attributes) {
    if (element_name.empty())
        return false;
    std::string tag = "<" + element_name;
    for (const dm_utf8_str& attribute : attributes) {
        if (attribute.object_name().empty())
            continue;
        tag += ' ';
        tag += attribute.object_name();
        tag += "=\"";
        tag += dm_xml_escape(attribute.str());
        tag += '"';
    }
    tag += ">\n";
    out.append(tag.data(), tag.size());
    return true;
}

}  // namespace

dm_object::dm_object() = default;

dm_object::dm_object(const std::string& object_name) : name_(object_name) {}

dm_object::dm_object(const dm_object& other) : name_(other.name_) {
    if (other.attributes_)
        attributes_ = std::make_unique<dm_xml_attributes>(*other.attributes_);
}

dm_object::dm_object(dm_object&& other) noexcept = default;

dm_object& dm_object::operator=(const dm_object& other) {
    if (this == &other)
        return *this;
    std::unique_ptr<dm_xml_attributes> copy;
    if (other.attributes_)
        copy = std::make_unique<dm_xml_attributes>(*other.attributes_);
    name_ = other.name_;
    attributes_ = std::move(copy);
    return *this;
}

dm_object& dm_object::operator=(dm_object&& other) noexcept = default;

dm_object::~dm_object() = default;

std::unique_ptr<dm_object> dm_object::clone() const {
    return std::make_unique<dm_object>(*this);
}

bool dm_object::write_opening_tag(dm_utf8_str& out, const std::string& element_name,
                                  dm_xml_attributes& attributes) const {
    attributes.add("tag", name_);
    if (!write_tag(out, resolve_element_name(element_name), attributes))
        return false;
    if (attributes_)
        return attributes_->write_object(out);
    return true;
}

bool dm_object::write_closing_tag(dm_utf8_str& out, const std::string& element_name) const {
    const std::string name = resolve_element_name(element_name);
    if (name.empty())
        return false;
    const std::string tag = "</" + name + ">\n";
    out.append(tag.data(), tag.size());
    return true;
}

const char* dm_object::class_name() const {
    return "dm_object";
}

bool dm_object::write_object(dm_utf8_str& out) const {
    dm_xml_attributes attributes;
    if (!write_opening_tag(out, std::string(), attributes))
        return false;
    return write_closing_tag(out, std::string());
}

dm_xml_attributes& dm_object::make_attributes() {
    if (!attributes_)
        attributes_ = std::make_unique<dm_xml_attributes>();
    return *attributes_;
}

void dm_object::drop_attributes() {
    attributes_.reset();
}

std::string dm_object::resolve_element_name(const std::string& element_name) const {
    if (!element_name.empty())
        return element_name;
    const char* own = class_name();
    return own != nullptr ? std::string(own) : std::string();
}

void dm_object::add_attribute(dm_xml_attributes& attributes, const std::string& name,
                              const std::string& value) {
    attributes.add(name, value);
}

}  // namespace dunmar
