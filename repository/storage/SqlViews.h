// The views that people ask for, in the SQL that SQLite and PostgreSQL have in common. Flags are tested
// bare, so that a number serves as well as a BOOLEAN.
#pragma once

#include <string_view>

struct SqlView {
  std::string_view name;
  std::string_view query;
};

inline constexpr SqlView sqlViews[] = {
    {"package_paths",
     "WITH RECURSIVE tree(id, model_id, path) AS (\n"
     "  SELECT id, model_id, COALESCE(name, '') FROM packages WHERE parent_id IS NULL\n"
     "  UNION ALL\n"
     "  SELECT p.id, p.model_id, tree.path || '/' || COALESCE(p.name, '')\n"
     "  FROM tree JOIN packages p ON p.parent_id = tree.id)\n"
     "SELECT id, model_id, path FROM tree"},
    {"class_attributes",
     "SELECT c.model_id, p.name AS package, c.id AS class_id, c.name AS class, a.position, a.id AS "
     "attribute_id,\n"
     "  a.name AS attribute, t.name AS type,\n"
     "  CASE a.visibility WHEN 1 THEN 'protected' WHEN 2 THEN 'private' WHEN 3 THEN 'package' ELSE 'public' "
     "END\n"
     "    AS visibility,\n"
     "  CASE WHEN a.is_optional THEN 'yes' ELSE 'no' END AS optional, a.initial_value, a.description\n"
     "FROM classes c JOIN attributes a ON a.class_id = c.id\n"
     "  LEFT JOIN types t ON t.id = a.type_id LEFT JOIN packages p ON p.id = c.package_id"},
    {"operation_arguments",
     "SELECT o.model_id, c.id AS class_id, c.name AS class, o.id AS operation_id, o.name AS operation,\n"
     "  rt.name AS return_type, a.position, a.name AS argument,\n"
     "  CASE a.direction WHEN 1 THEN 'in' WHEN 2 THEN 'out' WHEN 3 THEN 'inout' WHEN 4 THEN 'return' END\n"
     "    AS direction, t.name AS type\n"
     "FROM operations o LEFT JOIN arguments a ON a.operation_id = o.id LEFT JOIN classes c ON c.id = "
     "o.class_id\n"
     "  LEFT JOIN types rt ON rt.id = o.return_type_id LEFT JOIN types t ON t.id = a.type_id"},
    {"association_ends",
     "SELECT a.model_id, a.id AS association_id, a.name AS association,\n"
     "  c1.id AS class1_id, c1.name AS class1, r1.name AS role1, r1.multiplicity AS multiplicity1,\n"
     "  c2.id AS class2_id, c2.name AS class2, r2.name AS role2, r2.multiplicity AS multiplicity2,\n"
     "  CASE WHEN a.is_composite THEN 'composite' WHEN r1.is_aggregate OR r2.is_aggregate THEN 'shared'\n"
     "    ELSE 'none' END AS aggregation\n"
     "FROM associations a JOIN association_roles r1 ON r1.association_id = a.id\n"
     "  JOIN association_roles r2 ON r2.association_id = a.id AND r2.id > r1.id\n"
     "  LEFT JOIN classes c1 ON c1.id = r1.associated_class_id\n"
     "  LEFT JOIN classes c2 ON c2.id = r2.associated_class_id"},
    {"class_supertypes",
     "SELECT g.model_id, g.id AS generalization_id, c.id AS class_id, c.name AS class,\n"
     "  s.id AS supertype_id, s.name AS supertype\n"
     "FROM generalizations g\n"
     "  JOIN generalization_roles cr ON cr.generalization_id = g.id AND NOT cr.is_supertype\n"
     "  JOIN generalization_roles sr ON sr.generalization_id = g.id AND sr.is_supertype\n"
     "  JOIN classes c ON c.id = cr.associated_class_id JOIN classes s ON s.id = sr.associated_class_id"},
    {"key_columns",
     "SELECT k.model_id, c.id AS class_id, c.name AS class, k.id AS key_id, k.name AS key_name,\n"
     "  CASE WHEN c.primary_key_id = k.id THEN 'primary key' ELSE k.kind END AS kind,\n"
     "  ka.position, a.id AS attribute_id, a.name AS attribute,\n"
     "  rc.name AS referenced_class, rk.name AS referenced_key\n"
     "FROM keys k LEFT JOIN classes c ON c.id = k.class_id\n"
     "  LEFT JOIN key_attributes ka ON ka.key_id = k.id LEFT JOIN attributes a ON a.id = ka.attribute_id\n"
     "  LEFT JOIN keys rk ON rk.id = k.candidate_key_id LEFT JOIN classes rc ON rc.id = rk.class_id"},
    {"data_dictionary",
     "SELECT c.model_id, s.name AS schema_name, c.id AS class_id,\n"
     "  COALESCE(c.physical_name, c.name) AS table_name, a.position, a.id AS attribute_id,\n"
     "  COALESCE(a.physical_name, a.name) AS column_name, t.name AS type, t.data_type, t.native_data_type,\n"
     "  t.length, t.scale, CASE WHEN a.is_optional THEN 'yes' ELSE 'no' END AS nullable,\n"
     "  CASE WHEN EXISTS (SELECT 1 FROM key_attributes ka\n"
     "    WHERE ka.key_id = c.primary_key_id AND ka.attribute_id = a.id) THEN 'yes' ELSE 'no' END AS "
     "primary_key,\n"
     "  a.initial_value, a.description\n"
     "FROM classes c JOIN attributes a ON a.class_id = c.id\n"
     "  LEFT JOIN types t ON t.id = a.type_id LEFT JOIN packages s ON s.id = c.data_package_id"},
    {"enumeration_values",
     "SELECT t.model_id, t.id AS type_id, t.name AS type, v.position, v.name, v.value, v.description\n"
     "FROM types t JOIN type_values v ON v.type_id = t.id"},
    {"object_properties",
     "SELECT t.model_id, v.object_id, o.kind, o.name, t.name AS property, v.value\n"
     "FROM property_values v JOIN property_types t ON t.id = v.property_type_id\n"
     "  JOIN objects o ON o.id = v.object_id"},
    {"object_notes",
     "SELECT n.model_id, n.object_id, o.kind, o.name, n.note_text\n"
     "FROM notes n JOIN objects o ON o.id = n.object_id"},
};
