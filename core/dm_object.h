#pragma once

#include <memory>
#include <string>

namespace dunmar {

class dm_utf8_str;
class dm_xml_attributes;

// Base of the string library: an object name and an optional owned attribute set. Every
// object can write itself as one XML element whose data travel in attributes.
class dm_object {
  public:
    dm_object();
    explicit dm_object(const std::string& object_name);
    dm_object(const dm_object& other);  // copies the name, clones the attribute set
    dm_object(dm_object&& other) noexcept;
    dm_object& operator=(const dm_object& other);
    dm_object& operator=(dm_object&& other) noexcept;

    // The virtual operations keep this order: destructor, clone, opening, closing.
    virtual ~dm_object();
    virtual std::unique_ptr<dm_object> clone() const;
    // Adds this class's attributes to `attributes`, writes "<name attr=...>\n", then the
    // object's own attribute set (if any) as a complete element. An empty `element_name`
    // stands for class_name(). False, with nothing written, when the name is still empty.
    virtual bool write_opening_tag(dm_utf8_str& out, const std::string& element_name,
                                   dm_xml_attributes& attributes) const;
    // Writes "</name>\n"; the name is resolved as for the opening tag.
    virtual bool write_closing_tag(dm_utf8_str& out, const std::string& element_name) const;
    // The element name used when none is given.
    virtual const char* class_name() const;

    // Opening and closing tag with the class's own element name.
    bool write_object(dm_utf8_str& out) const;

    const std::string& object_name() const { return name_; }
    void set_object_name(const std::string& name) { name_ = name; }

    // The object's own attribute set, or null when it has none.
    const dm_xml_attributes* attributes() const { return attributes_.get(); }
    dm_xml_attributes* attributes() { return attributes_.get(); }
    // The own attribute set, created empty when missing.
    dm_xml_attributes& make_attributes();
    void drop_attributes();

  protected:
    // The given element name, or class_name() when it is empty.
    std::string resolve_element_name(const std::string& element_name) const;
    // Appends a named attribute; usable where dm_xml_attributes is not yet complete.
    static void add_attribute(dm_xml_attributes& attributes, const std::string& name,
                              const std::string& value);

  private:
    std::string name_;
    std::unique_ptr<dm_xml_attributes> attributes_;
};

}  // namespace dunmar
