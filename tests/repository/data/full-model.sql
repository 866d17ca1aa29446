-- A model saved by kyr. It is loaded into an empty database or schema: psql -v ON_ERROR_STOP=1 -f FILE
-- The two SET commands are for PostgreSQL; other systems do without them.
SET client_encoding = 'UTF8';
SET standard_conforming_strings = on;
START TRANSACTION;
CREATE TABLE models (id BIGINT PRIMARY KEY, design_level INTEGER NOT NULL, store_type INTEGER NOT NULL, modification_time TEXT, data_store TEXT, data_store_version TEXT, origin_path TEXT, last_id BIGINT NOT NULL, name TEXT, source_id TEXT, description TEXT);
CREATE TABLE property_types (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, name TEXT, source_id TEXT, description TEXT, element_type TEXT, design_level INTEGER NOT NULL, usage TEXT, initial_value TEXT, data_type TEXT);
CREATE TABLE packages (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, kind TEXT NOT NULL, parent_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, data_package_id BIGINT, is_model_package BOOLEAN NOT NULL);
CREATE TABLE types (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, kind TEXT NOT NULL, package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, data_package_id BIGINT, data_type TEXT, native_data_type TEXT, length INTEGER NOT NULL, scale INTEGER NOT NULL, user_defined BOOLEAN NOT NULL, base_concrete_type_id BIGINT, associated_class_id BIGINT);
CREATE TABLE type_values (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, type_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, position INTEGER NOT NULL, value TEXT);
CREATE TABLE classes (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, data_package_id BIGINT, is_abstract BOOLEAN NOT NULL, is_physical_class BOOLEAN NOT NULL, class_category INTEGER NOT NULL, visibility INTEGER NOT NULL, primary_key_id BIGINT, association_id BIGINT);
CREATE TABLE attributes (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, class_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, type_id BIGINT, position INTEGER NOT NULL, visibility INTEGER NOT NULL, is_optional BOOLEAN NOT NULL, is_derived BOOLEAN NOT NULL, is_static BOOLEAN NOT NULL, initial_value TEXT);
CREATE TABLE operations (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, class_id BIGINT, package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, data_package_id BIGINT, position INTEGER NOT NULL, visibility INTEGER NOT NULL, is_static BOOLEAN NOT NULL, return_type_id BIGINT);
CREATE TABLE arguments (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, operation_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, position INTEGER NOT NULL, direction INTEGER NOT NULL, type_id BIGINT);
CREATE TABLE keys (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, kind TEXT NOT NULL, class_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, is_unique BOOLEAN NOT NULL, candidate_key_id BIGINT, association_role_id BIGINT, generalization_role_id BIGINT);
CREATE TABLE associations (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, data_package_id BIGINT, is_composite BOOLEAN NOT NULL);
CREATE TABLE association_roles (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, association_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, visibility INTEGER NOT NULL, is_ordered BOOLEAN NOT NULL, is_aggregate BOOLEAN NOT NULL, is_source BOOLEAN NOT NULL, multiplicity TEXT, associated_class_id BIGINT);
CREATE TABLE generalizations (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, data_package_id BIGINT);
CREATE TABLE generalization_roles (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, generalization_id BIGINT, is_supertype BOOLEAN NOT NULL, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, associated_class_id BIGINT);
CREATE TABLE dependencies (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, data_package_id BIGINT, client_class_id BIGINT, supplier_class_id BIGINT);
CREATE TABLE realizations (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT, data_package_id BIGINT, realization_class_id BIGINT, specification_class_id BIGINT);
CREATE TABLE diagrams (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name TEXT);
CREATE TABLE shapes (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, kind TEXT NOT NULL, diagram_id BIGINT, name TEXT, source_id TEXT, description TEXT, background_color INTEGER NOT NULL, display_flags INTEGER NOT NULL, font_color INTEGER NOT NULL, font_size INTEGER NOT NULL, font_name TEXT, is_bold BOOLEAN NOT NULL, is_italic BOOLEAN NOT NULL, line_color INTEGER NOT NULL, line_width INTEGER NOT NULL, width INTEGER NOT NULL, height INTEGER NOT NULL, x INTEGER NOT NULL, y INTEGER NOT NULL, subject_id BIGINT, auto_size BOOLEAN NOT NULL, line_points TEXT);
CREATE TABLE notes (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, object_id BIGINT NOT NULL, name TEXT, source_id TEXT, description TEXT, note_text TEXT);
CREATE TABLE key_attributes (key_id BIGINT NOT NULL, position INTEGER NOT NULL, attribute_id BIGINT NOT NULL);
CREATE TABLE diagram_elements (diagram_id BIGINT NOT NULL, position INTEGER NOT NULL, element_id BIGINT NOT NULL);
CREATE TABLE property_values (object_id BIGINT NOT NULL, property_type_id BIGINT NOT NULL, value TEXT);
CREATE TABLE origins (model_id BIGINT NOT NULL, position INTEGER NOT NULL, file_encoding TEXT, format_name TEXT, format_version TEXT, origin_code INTEGER NOT NULL, file_path TEXT, tool_name TEXT, tool_version TEXT, tool_detail TEXT, bridge_name TEXT, origin_id TEXT, build_version TEXT);
INSERT INTO models (id, design_level, store_type, modification_time, data_store, data_store_version, origin_path, last_id, name, source_id, description) VALUES
(1, 1, 3, '2026-01-01T00:00:00Z', 'ORACLE', '12.0.0', 'shop2', 0, 'Shop', 'model_id', 'A model');
INSERT INTO property_types (id, model_id, name, source_id, description, element_type, design_level, usage, initial_value, data_type) VALUES
(3, 1, 'author', 'property', 'A property', 'KYRStoreModel', 1, 'USER', 'none', 'SQL_VARCHAR'),
(4, 1, 'status', 'property', 'A property', 'KYRStoreModel', 1, 'USER', 'none', 'SQL_VARCHAR'),
(5, 1, 'author', 'property', 'A property', 'KYRConcreteType', 1, 'USER', 'none', 'SQL_VARCHAR'),
(6, 1, 'status', 'property', 'A property', 'KYRConcreteType', 1, 'USER', 'none', 'SQL_VARCHAR'),
(7, 1, 'author', 'property', 'A property', 'KYRDerivedType', 1, 'USER', 'none', 'SQL_VARCHAR'),
(8, 1, 'status', 'property', 'A property', 'KYRDerivedType', 1, 'USER', 'none', 'SQL_VARCHAR'),
(9, 1, 'author', 'property', 'A property', 'KYRTypeValue', 1, 'USER', 'none', 'SQL_VARCHAR'),
(10, 1, 'status', 'property', 'A property', 'KYRTypeValue', 1, 'USER', 'none', 'SQL_VARCHAR'),
(11, 1, 'author', 'property', 'A property', 'KYRClassType', 1, 'USER', 'none', 'SQL_VARCHAR'),
(12, 1, 'status', 'property', 'A property', 'KYRClassType', 1, 'USER', 'none', 'SQL_VARCHAR'),
(13, 1, 'author', 'property', 'A property', 'KYRDesignPackage', 1, 'USER', 'none', 'SQL_VARCHAR'),
(14, 1, 'status', 'property', 'A property', 'KYRDesignPackage', 1, 'USER', 'none', 'SQL_VARCHAR'),
(15, 1, 'author', 'property', 'A property', 'KYRRealization', 1, 'USER', 'none', 'SQL_VARCHAR'),
(16, 1, 'status', 'property', 'A property', 'KYRRealization', 1, 'USER', 'none', 'SQL_VARCHAR'),
(17, 1, 'author', 'property', 'A property', 'KYRClass', 1, 'USER', 'none', 'SQL_VARCHAR'),
(18, 1, 'status', 'property', 'A property', 'KYRClass', 1, 'USER', 'none', 'SQL_VARCHAR'),
(19, 1, 'author', 'property', 'A property', 'KYRAttribute', 1, 'USER', 'none', 'SQL_VARCHAR'),
(20, 1, 'status', 'property', 'A property', 'KYRAttribute', 1, 'USER', 'none', 'SQL_VARCHAR'),
(21, 1, 'author', 'property', 'A property', 'KYROperation', 1, 'USER', 'none', 'SQL_VARCHAR'),
(22, 1, 'status', 'property', 'A property', 'KYROperation', 1, 'USER', 'none', 'SQL_VARCHAR'),
(23, 1, 'author', 'property', 'A property', 'KYRArgument', 1, 'USER', 'none', 'SQL_VARCHAR'),
(24, 1, 'status', 'property', 'A property', 'KYRArgument', 1, 'USER', 'none', 'SQL_VARCHAR'),
(25, 1, 'author', 'property', 'A property', 'KYRCandidateKey', 1, 'USER', 'none', 'SQL_VARCHAR'),
(26, 1, 'status', 'property', 'A property', 'KYRCandidateKey', 1, 'USER', 'none', 'SQL_VARCHAR'),
(27, 1, 'author', 'property', 'A property', 'KYRForeignKey', 1, 'USER', 'none', 'SQL_VARCHAR'),
(28, 1, 'status', 'property', 'A property', 'KYRForeignKey', 1, 'USER', 'none', 'SQL_VARCHAR'),
(29, 1, 'author', 'property', 'A property', 'KYRAssociation', 1, 'USER', 'none', 'SQL_VARCHAR'),
(30, 1, 'status', 'property', 'A property', 'KYRAssociation', 1, 'USER', 'none', 'SQL_VARCHAR'),
(31, 1, 'author', 'property', 'A property', 'KYRAssociationRole', 1, 'USER', 'none', 'SQL_VARCHAR'),
(32, 1, 'status', 'property', 'A property', 'KYRAssociationRole', 1, 'USER', 'none', 'SQL_VARCHAR'),
(33, 1, 'author', 'property', 'A property', 'KYRGeneralization', 1, 'USER', 'none', 'SQL_VARCHAR'),
(34, 1, 'status', 'property', 'A property', 'KYRGeneralization', 1, 'USER', 'none', 'SQL_VARCHAR'),
(35, 1, 'author', 'property', 'A property', 'KYRGeneralizationRole', 1, 'USER', 'none', 'SQL_VARCHAR'),
(36, 1, 'status', 'property', 'A property', 'KYRGeneralizationRole', 1, 'USER', 'none', 'SQL_VARCHAR'),
(37, 1, 'author', 'property', 'A property', 'KYRDependency', 1, 'USER', 'none', 'SQL_VARCHAR'),
(38, 1, 'status', 'property', 'A property', 'KYRDependency', 1, 'USER', 'none', 'SQL_VARCHAR'),
(39, 1, 'author', 'property', 'A property', 'KYRClassDiagram', 1, 'USER', 'none', 'SQL_VARCHAR'),
(40, 1, 'status', 'property', 'A property', 'KYRClassDiagram', 1, 'USER', 'none', 'SQL_VARCHAR'),
(41, 1, 'author', 'property', 'A property', 'KYRDatabaseSchema', 1, 'USER', 'none', 'SQL_VARCHAR'),
(42, 1, 'status', 'property', 'A property', 'KYRDatabaseSchema', 1, 'USER', 'none', 'SQL_VARCHAR'),
(43, 1, 'author', 'property', 'A property', 'KYRDataPackage', 1, 'USER', 'none', 'SQL_VARCHAR'),
(44, 1, 'status', 'property', 'A property', 'KYRDataPackage', 1, 'USER', 'none', 'SQL_VARCHAR');
INSERT INTO packages (id, model_id, kind, parent_id, name, source_id, description, physical_name, data_package_id, is_model_package) VALUES
(55, 1, 'package', NULL, 'Sales', 'id_6', 'Description 6', 'PHYS_6', 108, TRUE),
(57, 1, 'package', 55, 'Inner', 'id_7', 'Description 7', 'PHYS_7', 109, FALSE),
(97, 1, 'schema', NULL, 'SCHEMA', 'id_8', 'Description 8', 'PHYS_8', 115, FALSE),
(101, 1, 'data package', NULL, 'Files', 'id_10', 'Description 10', 'PHYS_10', 117, FALSE),
(105, 1, 'schema', NULL, 'SCHEMA33', 'id_34', 'Description 34', 'PHYS_34', NULL, FALSE),
(106, 1, 'schema', NULL, 'SCHEMA35', 'id_36', 'Description 36', 'PHYS_36', NULL, FALSE),
(107, 1, 'schema', NULL, 'SCHEMA39', 'id_40', 'Description 40', 'PHYS_40', NULL, FALSE),
(108, 1, 'schema', NULL, 'SCHEMA41', 'id_42', 'Description 42', 'PHYS_42', NULL, FALSE),
(109, 1, 'schema', NULL, 'SCHEMA43', 'id_44', 'Description 44', 'PHYS_44', NULL, FALSE),
(110, 1, 'schema', NULL, 'SCHEMA45', 'id_46', 'Description 46', 'PHYS_46', NULL, FALSE),
(111, 1, 'schema', NULL, 'SCHEMA49', 'id_50', 'Description 50', 'PHYS_50', NULL, FALSE),
(112, 1, 'schema', NULL, 'SCHEMA57', 'id_58', 'Description 58', 'PHYS_58', NULL, FALSE),
(113, 1, 'schema', NULL, 'SCHEMA61', 'id_62', 'Description 62', 'PHYS_62', NULL, FALSE),
(114, 1, 'schema', NULL, 'SCHEMA65', 'id_66', 'Description 66', 'PHYS_66', NULL, FALSE),
(115, 1, 'schema', NULL, 'SCHEMA68', 'id_69', 'Description 69', 'PHYS_69', NULL, FALSE),
(116, 1, 'schema', NULL, 'SCHEMA70', 'id_71', 'Description 71', 'PHYS_71', NULL, FALSE),
(117, 1, 'schema', NULL, 'SCHEMA72', 'id_73', 'Description 73', 'PHYS_73', NULL, FALSE),
(118, 1, 'schema', NULL, 'SCHEMA74', 'id_75', 'Description 75', 'PHYS_75', NULL, FALSE);
INSERT INTO types (id, model_id, kind, package_id, name, source_id, description, physical_name, data_package_id, data_type, native_data_type, length, scale, user_defined, base_concrete_type_id, associated_class_id) VALUES
(45, 1, 'base type', NULL, 'VARCHAR', 'id_1', 'Description 1', 'PHYS_1', 105, 'SQL_VARCHAR', 'varchar', 255, 1, FALSE, NULL, NULL),
(47, 1, 'derived type', NULL, 'colour', 'id_2', 'Description 2', 'PHYS_2', 106, 'SQL_VARCHAR', 'Colour', 30, -2, TRUE, 45, NULL),
(53, 1, 'class type', NULL, 'Order', 'id_5', 'Description 5', 'PHYS_5', 107, NULL, NULL, 0, 0, FALSE, NULL, 61);
INSERT INTO type_values (id, model_id, type_id, name, source_id, description, physical_name, position, value) VALUES
(49, 1, 47, 'red', 'id_3', 'Description 3', 'PHYS_3', 0, 'value of red'),
(51, 1, 47, 'green', 'id_4', 'Description 4', 'PHYS_4', 1, 'value of green');
INSERT INTO classes (id, model_id, package_id, name, source_id, description, physical_name, data_package_id, is_abstract, is_physical_class, class_category, visibility, primary_key_id, association_id) VALUES
(61, 1, 55, 'Order', 'id_12', 'Description 12', 'PHYS_12', 97, TRUE, TRUE, 9, 2, 69, 79),
(71, 1, 55, 'Item', 'id_13', 'Description 13', 'PHYS_13', 97, FALSE, FALSE, 0, 0, NULL, NULL);
INSERT INTO attributes (id, model_id, class_id, name, source_id, description, physical_name, type_id, position, visibility, is_optional, is_derived, is_static, initial_value) VALUES
(63, 1, 61, 'id', 'id_14', 'Description 14', 'PHYS_14', 47, 0, 0, FALSE, FALSE, FALSE, NULL),
(73, 1, 71, 'order', 'id_15', 'Description 15', 'PHYS_15', 47, 7, 1, TRUE, TRUE, TRUE, '"quoted"\
	 café');
INSERT INTO operations (id, model_id, class_id, package_id, name, source_id, description, physical_name, data_package_id, position, visibility, is_static, return_type_id) VALUES
(65, 1, 61, NULL, 'add', 'id_16', 'Description 16', 'PHYS_16', 111, 3, 3, TRUE, 53);
INSERT INTO arguments (id, model_id, operation_id, name, source_id, description, physical_name, position, direction, type_id) VALUES
(67, 1, 65, 'item', 'id_17', 'Description 17', 'PHYS_17', 1, 3, 47);
INSERT INTO keys (id, model_id, kind, class_id, name, source_id, description, physical_name, is_unique, candidate_key_id, association_role_id, generalization_role_id) VALUES
(69, 1, 'candidate key', 61, 'PK', 'id_26', 'Description 26', 'PHYS_26', TRUE, NULL, NULL, NULL),
(75, 1, 'foreign key', 71, 'FK1', 'id_27', 'Description 27', 'PHYS_27', FALSE, 69, 83, NULL),
(77, 1, 'foreign key', 71, 'FK2', 'id_28', 'Description 28', 'PHYS_28', FALSE, NULL, NULL, 89);
INSERT INTO associations (id, model_id, package_id, name, source_id, description, physical_name, data_package_id, is_composite) VALUES
(79, 1, 55, 'holds', 'id_18', 'Description 18', 'PHYS_18', 112, TRUE);
INSERT INTO association_roles (id, model_id, association_id, name, source_id, description, physical_name, visibility, is_ordered, is_aggregate, is_source, multiplicity, associated_class_id) VALUES
(81, 1, 79, 'end', 'id_19', 'Description 19', 'PHYS_19', 2, TRUE, TRUE, TRUE, '0..*', 61),
(83, 1, 79, 'end', 'id_20', 'Description 20', 'PHYS_20', 2, TRUE, TRUE, FALSE, '0..*', 71);
INSERT INTO generalizations (id, model_id, package_id, name, source_id, description, physical_name, data_package_id) VALUES
(85, 1, 55, 'kinds', 'id_21', 'Description 21', 'PHYS_21', 113);
INSERT INTO generalization_roles (id, model_id, generalization_id, is_supertype, name, source_id, description, physical_name, associated_class_id) VALUES
(87, 1, 85, TRUE, 'super', 'id_22', 'Description 22', 'PHYS_22', 61),
(89, 1, 85, FALSE, 'sub', 'id_23', 'Description 23', 'PHYS_23', 71);
INSERT INTO dependencies (id, model_id, package_id, name, source_id, description, physical_name, data_package_id, client_class_id, supplier_class_id) VALUES
(91, 1, 55, 'uses', 'id_24', 'Description 24', 'PHYS_24', 114, 71, 61),
(103, 1, 101, 'in the files', 'id_11', 'Description 11', 'PHYS_11', 118, NULL, NULL);
INSERT INTO realizations (id, model_id, package_id, name, source_id, description, physical_name, data_package_id, realization_class_id, specification_class_id) VALUES
(59, 1, 57, 'does', 'id_25', 'Description 25', 'PHYS_25', 110, 61, 71),
(99, 1, 97, 'in the schema', 'id_9', 'Description 9', 'PHYS_9', 116, NULL, NULL);
INSERT INTO diagrams (id, model_id, package_id, name, source_id, description, physical_name) VALUES
(93, 1, 55, 'Overview', 'id_29', 'Description 29', 'PHYS_29');
INSERT INTO shapes (id, model_id, kind, diagram_id, name, source_id, description, background_color, display_flags, font_color, font_size, font_name, is_bold, is_italic, line_color, line_width, width, height, x, y, subject_id, auto_size, line_points) VALUES
(95, 1, 'box', 93, 'shape', 'id_30', 'Description 30', 10079487, 26214428, 1, 11, 'Arial', TRUE, TRUE, 2, 3, 40, 50, -60, 70, 61, TRUE, NULL),
(96, 1, 'line', 93, 'line', 'id_31', 'Description 31', 10079487, 26214428, 1, 11, 'Arial', TRUE, TRUE, 2, 3, 40, 50, -60, 70, 79, FALSE, '1,2;3,4');
INSERT INTO notes (id, model_id, object_id, name, source_id, description, note_text) VALUES
(2, 1, 1, 'note', 'id_32', 'Description 32', 'Text of the note'),
(46, 1, 45, 'note', 'id_33', 'Description 33', 'Text of the note'),
(48, 1, 47, 'note', 'id_35', 'Description 35', 'Text of the note'),
(50, 1, 49, 'note', 'id_37', 'Description 37', 'Text of the note'),
(52, 1, 51, 'note', 'id_38', 'Description 38', 'Text of the note'),
(54, 1, 53, 'note', 'id_39', 'Description 39', 'Text of the note'),
(56, 1, 55, 'note', 'id_41', 'Description 41', 'Text of the note'),
(58, 1, 57, 'note', 'id_43', 'Description 43', 'Text of the note'),
(60, 1, 59, 'note', 'id_45', 'Description 45', 'Text of the note'),
(62, 1, 61, 'note', 'id_47', 'Description 47', 'Text of the note'),
(64, 1, 63, 'note', 'id_48', 'Description 48', 'Text of the note'),
(66, 1, 65, 'note', 'id_49', 'Description 49', 'Text of the note'),
(68, 1, 67, 'note', 'id_51', 'Description 51', 'Text of the note'),
(70, 1, 69, 'note', 'id_52', 'Description 52', 'Text of the note'),
(72, 1, 71, 'note', 'id_53', 'Description 53', 'Text of the note'),
(74, 1, 73, 'note', 'id_54', 'Description 54', 'Text of the note'),
(76, 1, 75, 'note', 'id_55', 'Description 55', 'Text of the note'),
(78, 1, 77, 'note', 'id_56', 'Description 56', 'Text of the note'),
(80, 1, 79, 'note', 'id_57', 'Description 57', 'Text of the note'),
(82, 1, 81, 'note', 'id_59', 'Description 59', 'Text of the note'),
(84, 1, 83, 'note', 'id_60', 'Description 60', 'Text of the note'),
(86, 1, 85, 'note', 'id_61', 'Description 61', 'Text of the note'),
(88, 1, 87, 'note', 'id_63', 'Description 63', 'Text of the note'),
(90, 1, 89, 'note', 'id_64', 'Description 64', 'Text of the note'),
(92, 1, 91, 'note', 'id_65', 'Description 65', 'Text of the note'),
(94, 1, 93, 'note', 'id_67', 'Description 67', 'Text of the note'),
(98, 1, 97, 'note', 'id_68', 'Description 68', 'Text of the note'),
(100, 1, 99, 'note', 'id_70', 'Description 70', 'Text of the note'),
(102, 1, 101, 'note', 'id_72', 'Description 72', 'Text of the note'),
(104, 1, 103, 'note', 'id_74', 'Description 74', 'Text of the note');
INSERT INTO key_attributes (key_id, position, attribute_id) VALUES
(69, 0, 63),
(75, 0, 73);
INSERT INTO diagram_elements (diagram_id, position, element_id) VALUES
(93, 0, 61),
(93, 1, 79);
INSERT INTO property_values (object_id, property_type_id, value) VALUES
(1, 3, 'value of author'),
(1, 4, 'value of status'),
(45, 5, 'value of author'),
(45, 6, 'value of status'),
(47, 7, 'value of author'),
(47, 8, 'value of status'),
(49, 9, 'value of author'),
(49, 10, 'value of status'),
(51, 9, 'value of author'),
(51, 10, 'value of status'),
(53, 11, 'value of author'),
(53, 12, 'value of status'),
(55, 13, 'value of author'),
(55, 14, 'value of status'),
(57, 13, 'value of author'),
(57, 14, 'value of status'),
(59, 15, 'value of author'),
(59, 16, 'value of status'),
(61, 17, 'value of author'),
(61, 18, 'value of status'),
(63, 19, 'value of author'),
(63, 20, 'value of status'),
(65, 21, 'value of author'),
(65, 22, 'value of status'),
(67, 23, 'value of author'),
(67, 24, 'value of status'),
(69, 25, 'value of author'),
(69, 26, 'value of status'),
(71, 17, 'value of author'),
(71, 18, 'value of status'),
(73, 19, 'value of author'),
(73, 20, 'value of status'),
(75, 27, 'value of author'),
(75, 28, 'value of status'),
(77, 27, 'value of author'),
(77, 28, 'value of status'),
(79, 29, 'value of author'),
(79, 30, 'value of status'),
(81, 31, 'value of author'),
(81, 32, 'value of status'),
(83, 31, 'value of author'),
(83, 32, 'value of status'),
(85, 33, 'value of author'),
(85, 34, 'value of status'),
(87, 35, 'value of author'),
(87, 36, 'value of status'),
(89, 35, 'value of author'),
(89, 36, 'value of status'),
(91, 37, 'value of author'),
(91, 38, 'value of status'),
(93, 39, 'value of author'),
(93, 40, 'value of status'),
(97, 41, 'value of author'),
(97, 42, 'value of status'),
(99, 15, 'value of author'),
(99, 16, 'value of status'),
(101, 43, 'value of author'),
(101, 44, 'value of status'),
(103, 37, 'value of author'),
(103, 38, 'value of status');
INSERT INTO origins (model_id, position, file_encoding, format_name, format_version, origin_code, file_path, tool_name, tool_version, tool_detail, bridge_name, origin_id, build_version) VALUES
(1, 0, 'UTF-8', 'OMG UML2 XMI', 'UML 2.1', 346, 'shop1', 'Tool', '7', 'Detail', 'Bridge', 'origin', '10.0.1'),
(1, 1, 'UTF-8', 'OMG UML2 XMI', 'UML 2.1', 346, 'shop2', 'Tool', '7', 'Detail', 'Bridge', 'origin', '10.0.1');
UPDATE models SET last_id = 118;
ALTER TABLE property_types ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE packages ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE packages ADD FOREIGN KEY (parent_id) REFERENCES packages (id);
ALTER TABLE packages ADD FOREIGN KEY (data_package_id) REFERENCES packages (id);
ALTER TABLE types ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE types ADD FOREIGN KEY (package_id) REFERENCES packages (id);
ALTER TABLE types ADD FOREIGN KEY (data_package_id) REFERENCES packages (id);
ALTER TABLE types ADD FOREIGN KEY (base_concrete_type_id) REFERENCES types (id);
ALTER TABLE types ADD FOREIGN KEY (associated_class_id) REFERENCES classes (id);
ALTER TABLE type_values ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE type_values ADD FOREIGN KEY (type_id) REFERENCES types (id);
ALTER TABLE classes ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE classes ADD FOREIGN KEY (package_id) REFERENCES packages (id);
ALTER TABLE classes ADD FOREIGN KEY (data_package_id) REFERENCES packages (id);
ALTER TABLE classes ADD FOREIGN KEY (primary_key_id) REFERENCES keys (id);
ALTER TABLE classes ADD FOREIGN KEY (association_id) REFERENCES associations (id);
ALTER TABLE attributes ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE attributes ADD FOREIGN KEY (class_id) REFERENCES classes (id);
ALTER TABLE attributes ADD FOREIGN KEY (type_id) REFERENCES types (id);
ALTER TABLE operations ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE operations ADD FOREIGN KEY (class_id) REFERENCES classes (id);
ALTER TABLE operations ADD FOREIGN KEY (package_id) REFERENCES packages (id);
ALTER TABLE operations ADD FOREIGN KEY (data_package_id) REFERENCES packages (id);
ALTER TABLE operations ADD FOREIGN KEY (return_type_id) REFERENCES types (id);
ALTER TABLE arguments ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE arguments ADD FOREIGN KEY (operation_id) REFERENCES operations (id);
ALTER TABLE arguments ADD FOREIGN KEY (type_id) REFERENCES types (id);
ALTER TABLE keys ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE keys ADD FOREIGN KEY (class_id) REFERENCES classes (id);
ALTER TABLE keys ADD FOREIGN KEY (candidate_key_id) REFERENCES keys (id);
ALTER TABLE keys ADD FOREIGN KEY (association_role_id) REFERENCES association_roles (id);
ALTER TABLE keys ADD FOREIGN KEY (generalization_role_id) REFERENCES generalization_roles (id);
ALTER TABLE associations ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE associations ADD FOREIGN KEY (package_id) REFERENCES packages (id);
ALTER TABLE associations ADD FOREIGN KEY (data_package_id) REFERENCES packages (id);
ALTER TABLE association_roles ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE association_roles ADD FOREIGN KEY (association_id) REFERENCES associations (id);
ALTER TABLE association_roles ADD FOREIGN KEY (associated_class_id) REFERENCES classes (id);
ALTER TABLE generalizations ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE generalizations ADD FOREIGN KEY (package_id) REFERENCES packages (id);
ALTER TABLE generalizations ADD FOREIGN KEY (data_package_id) REFERENCES packages (id);
ALTER TABLE generalization_roles ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE generalization_roles ADD FOREIGN KEY (generalization_id) REFERENCES generalizations (id);
ALTER TABLE generalization_roles ADD FOREIGN KEY (associated_class_id) REFERENCES classes (id);
ALTER TABLE dependencies ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE dependencies ADD FOREIGN KEY (package_id) REFERENCES packages (id);
ALTER TABLE dependencies ADD FOREIGN KEY (data_package_id) REFERENCES packages (id);
ALTER TABLE dependencies ADD FOREIGN KEY (client_class_id) REFERENCES classes (id);
ALTER TABLE dependencies ADD FOREIGN KEY (supplier_class_id) REFERENCES classes (id);
ALTER TABLE realizations ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE realizations ADD FOREIGN KEY (package_id) REFERENCES packages (id);
ALTER TABLE realizations ADD FOREIGN KEY (data_package_id) REFERENCES packages (id);
ALTER TABLE realizations ADD FOREIGN KEY (realization_class_id) REFERENCES classes (id);
ALTER TABLE realizations ADD FOREIGN KEY (specification_class_id) REFERENCES classes (id);
ALTER TABLE diagrams ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE diagrams ADD FOREIGN KEY (package_id) REFERENCES packages (id);
ALTER TABLE shapes ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE shapes ADD FOREIGN KEY (diagram_id) REFERENCES diagrams (id);
ALTER TABLE notes ADD FOREIGN KEY (model_id) REFERENCES models (id);
ALTER TABLE key_attributes ADD FOREIGN KEY (key_id) REFERENCES keys (id);
ALTER TABLE key_attributes ADD FOREIGN KEY (attribute_id) REFERENCES attributes (id);
ALTER TABLE diagram_elements ADD FOREIGN KEY (diagram_id) REFERENCES diagrams (id);
ALTER TABLE property_values ADD FOREIGN KEY (property_type_id) REFERENCES property_types (id);
ALTER TABLE origins ADD FOREIGN KEY (model_id) REFERENCES models (id);
CREATE INDEX models_by_name ON models (name) WHERE name IS NOT NULL;
CREATE INDEX models_by_source_id ON models (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX property_types_by_name ON property_types (name) WHERE name IS NOT NULL;
CREATE INDEX property_types_by_source_id ON property_types (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX packages_by_parent_id ON packages (parent_id) WHERE parent_id IS NOT NULL;
CREATE INDEX packages_by_name ON packages (name) WHERE name IS NOT NULL;
CREATE INDEX packages_by_source_id ON packages (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX packages_by_data_package_id ON packages (data_package_id) WHERE data_package_id IS NOT NULL;
CREATE INDEX types_by_package_id ON types (package_id) WHERE package_id IS NOT NULL;
CREATE INDEX types_by_name ON types (name) WHERE name IS NOT NULL;
CREATE INDEX types_by_source_id ON types (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX types_by_data_package_id ON types (data_package_id) WHERE data_package_id IS NOT NULL;
CREATE INDEX types_by_base_concrete_type_id ON types (base_concrete_type_id) WHERE base_concrete_type_id IS NOT NULL;
CREATE INDEX types_by_associated_class_id ON types (associated_class_id) WHERE associated_class_id IS NOT NULL;
CREATE INDEX type_values_by_type_id ON type_values (type_id) WHERE type_id IS NOT NULL;
CREATE INDEX type_values_by_name ON type_values (name) WHERE name IS NOT NULL;
CREATE INDEX type_values_by_source_id ON type_values (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX classes_by_package_id ON classes (package_id) WHERE package_id IS NOT NULL;
CREATE INDEX classes_by_name ON classes (name) WHERE name IS NOT NULL;
CREATE INDEX classes_by_source_id ON classes (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX classes_by_data_package_id ON classes (data_package_id) WHERE data_package_id IS NOT NULL;
CREATE INDEX classes_by_primary_key_id ON classes (primary_key_id) WHERE primary_key_id IS NOT NULL;
CREATE INDEX classes_by_association_id ON classes (association_id) WHERE association_id IS NOT NULL;
CREATE INDEX attributes_by_class_id ON attributes (class_id) WHERE class_id IS NOT NULL;
CREATE INDEX attributes_by_name ON attributes (name) WHERE name IS NOT NULL;
CREATE INDEX attributes_by_source_id ON attributes (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX attributes_by_type_id ON attributes (type_id) WHERE type_id IS NOT NULL;
CREATE INDEX operations_by_class_id ON operations (class_id) WHERE class_id IS NOT NULL;
CREATE INDEX operations_by_package_id ON operations (package_id) WHERE package_id IS NOT NULL;
CREATE INDEX operations_by_name ON operations (name) WHERE name IS NOT NULL;
CREATE INDEX operations_by_source_id ON operations (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX operations_by_data_package_id ON operations (data_package_id) WHERE data_package_id IS NOT NULL;
CREATE INDEX operations_by_return_type_id ON operations (return_type_id) WHERE return_type_id IS NOT NULL;
CREATE INDEX arguments_by_operation_id ON arguments (operation_id) WHERE operation_id IS NOT NULL;
CREATE INDEX arguments_by_name ON arguments (name) WHERE name IS NOT NULL;
CREATE INDEX arguments_by_source_id ON arguments (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX arguments_by_type_id ON arguments (type_id) WHERE type_id IS NOT NULL;
CREATE INDEX keys_by_class_id ON keys (class_id) WHERE class_id IS NOT NULL;
CREATE INDEX keys_by_name ON keys (name) WHERE name IS NOT NULL;
CREATE INDEX keys_by_source_id ON keys (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX keys_by_candidate_key_id ON keys (candidate_key_id) WHERE candidate_key_id IS NOT NULL;
CREATE INDEX keys_by_association_role_id ON keys (association_role_id) WHERE association_role_id IS NOT NULL;
CREATE INDEX keys_by_generalization_role_id ON keys (generalization_role_id) WHERE generalization_role_id IS NOT NULL;
CREATE INDEX associations_by_package_id ON associations (package_id) WHERE package_id IS NOT NULL;
CREATE INDEX associations_by_name ON associations (name) WHERE name IS NOT NULL;
CREATE INDEX associations_by_source_id ON associations (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX associations_by_data_package_id ON associations (data_package_id) WHERE data_package_id IS NOT NULL;
CREATE INDEX association_roles_by_association_id ON association_roles (association_id) WHERE association_id IS NOT NULL;
CREATE INDEX association_roles_by_name ON association_roles (name) WHERE name IS NOT NULL;
CREATE INDEX association_roles_by_source_id ON association_roles (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX association_roles_by_associated_class_id ON association_roles (associated_class_id) WHERE associated_class_id IS NOT NULL;
CREATE INDEX generalizations_by_package_id ON generalizations (package_id) WHERE package_id IS NOT NULL;
CREATE INDEX generalizations_by_name ON generalizations (name) WHERE name IS NOT NULL;
CREATE INDEX generalizations_by_source_id ON generalizations (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX generalizations_by_data_package_id ON generalizations (data_package_id) WHERE data_package_id IS NOT NULL;
CREATE INDEX generalization_roles_by_generalization_id ON generalization_roles (generalization_id) WHERE generalization_id IS NOT NULL;
CREATE INDEX generalization_roles_by_name ON generalization_roles (name) WHERE name IS NOT NULL;
CREATE INDEX generalization_roles_by_source_id ON generalization_roles (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX generalization_roles_by_associated_class_id ON generalization_roles (associated_class_id) WHERE associated_class_id IS NOT NULL;
CREATE INDEX dependencies_by_package_id ON dependencies (package_id) WHERE package_id IS NOT NULL;
CREATE INDEX dependencies_by_name ON dependencies (name) WHERE name IS NOT NULL;
CREATE INDEX dependencies_by_source_id ON dependencies (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX dependencies_by_data_package_id ON dependencies (data_package_id) WHERE data_package_id IS NOT NULL;
CREATE INDEX dependencies_by_client_class_id ON dependencies (client_class_id) WHERE client_class_id IS NOT NULL;
CREATE INDEX dependencies_by_supplier_class_id ON dependencies (supplier_class_id) WHERE supplier_class_id IS NOT NULL;
CREATE INDEX realizations_by_package_id ON realizations (package_id) WHERE package_id IS NOT NULL;
CREATE INDEX realizations_by_name ON realizations (name) WHERE name IS NOT NULL;
CREATE INDEX realizations_by_source_id ON realizations (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX realizations_by_data_package_id ON realizations (data_package_id) WHERE data_package_id IS NOT NULL;
CREATE INDEX realizations_by_realization_class_id ON realizations (realization_class_id) WHERE realization_class_id IS NOT NULL;
CREATE INDEX realizations_by_specification_class_id ON realizations (specification_class_id) WHERE specification_class_id IS NOT NULL;
CREATE INDEX diagrams_by_package_id ON diagrams (package_id) WHERE package_id IS NOT NULL;
CREATE INDEX diagrams_by_name ON diagrams (name) WHERE name IS NOT NULL;
CREATE INDEX diagrams_by_source_id ON diagrams (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX shapes_by_diagram_id ON shapes (diagram_id) WHERE diagram_id IS NOT NULL;
CREATE INDEX shapes_by_name ON shapes (name) WHERE name IS NOT NULL;
CREATE INDEX shapes_by_source_id ON shapes (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX shapes_by_subject_id ON shapes (subject_id) WHERE subject_id IS NOT NULL;
CREATE INDEX notes_by_object_id ON notes (object_id);
CREATE INDEX notes_by_name ON notes (name) WHERE name IS NOT NULL;
CREATE INDEX notes_by_source_id ON notes (source_id) WHERE source_id IS NOT NULL;
CREATE INDEX key_attributes_by_key_id ON key_attributes (key_id);
CREATE INDEX key_attributes_by_attribute_id ON key_attributes (attribute_id);
CREATE INDEX diagram_elements_by_diagram_id ON diagram_elements (diagram_id);
CREATE INDEX diagram_elements_by_element_id ON diagram_elements (element_id);
CREATE INDEX property_values_by_object_id ON property_values (object_id);
CREATE INDEX property_values_by_property_type_id ON property_values (property_type_id);
CREATE INDEX origins_by_model_id ON origins (model_id);
CREATE VIEW objects AS
SELECT id, id AS model_id, CAST('model' AS TEXT) AS kind, CAST(NULL AS BIGINT) AS owner_id, name, source_id, description AS description FROM models
UNION ALL SELECT id, model_id AS model_id, CAST('property type' AS TEXT) AS kind, CAST(model_id AS BIGINT) AS owner_id, name, source_id, description AS description FROM property_types
UNION ALL SELECT id, model_id AS model_id, kind AS kind, CAST(COALESCE(parent_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM packages
UNION ALL SELECT id, model_id AS model_id, kind AS kind, CAST(COALESCE(package_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM types
UNION ALL SELECT id, model_id AS model_id, CAST('type value' AS TEXT) AS kind, CAST(COALESCE(type_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM type_values
UNION ALL SELECT id, model_id AS model_id, CAST('class' AS TEXT) AS kind, CAST(COALESCE(package_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM classes
UNION ALL SELECT id, model_id AS model_id, CAST('attribute' AS TEXT) AS kind, CAST(COALESCE(class_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM attributes
UNION ALL SELECT id, model_id AS model_id, CAST('operation' AS TEXT) AS kind, CAST(COALESCE(class_id, package_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM operations
UNION ALL SELECT id, model_id AS model_id, CAST('argument' AS TEXT) AS kind, CAST(COALESCE(operation_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM arguments
UNION ALL SELECT id, model_id AS model_id, kind AS kind, CAST(COALESCE(class_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM keys
UNION ALL SELECT id, model_id AS model_id, CAST('association' AS TEXT) AS kind, CAST(COALESCE(package_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM associations
UNION ALL SELECT id, model_id AS model_id, CAST('association role' AS TEXT) AS kind, CAST(COALESCE(association_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM association_roles
UNION ALL SELECT id, model_id AS model_id, CAST('generalization' AS TEXT) AS kind, CAST(COALESCE(package_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM generalizations
UNION ALL SELECT id, model_id AS model_id, CAST('generalization role' AS TEXT) AS kind, CAST(COALESCE(generalization_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM generalization_roles
UNION ALL SELECT id, model_id AS model_id, CAST('dependency' AS TEXT) AS kind, CAST(COALESCE(package_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM dependencies
UNION ALL SELECT id, model_id AS model_id, CAST('realization' AS TEXT) AS kind, CAST(COALESCE(package_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM realizations
UNION ALL SELECT id, model_id AS model_id, CAST('diagram' AS TEXT) AS kind, CAST(COALESCE(package_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM diagrams
UNION ALL SELECT id, model_id AS model_id, kind AS kind, CAST(COALESCE(diagram_id, model_id) AS BIGINT) AS owner_id, name, source_id, description AS description FROM shapes
UNION ALL SELECT id, model_id AS model_id, CAST('note' AS TEXT) AS kind, CAST(object_id AS BIGINT) AS owner_id, name, source_id, CAST(COALESCE(note_text, description) AS TEXT) AS description FROM notes;
CREATE VIEW package_paths AS
WITH RECURSIVE tree(id, model_id, path) AS (
  SELECT id, model_id, COALESCE(name, '') FROM packages WHERE parent_id IS NULL
  UNION ALL
  SELECT p.id, p.model_id, tree.path || '/' || COALESCE(p.name, '')
  FROM tree JOIN packages p ON p.parent_id = tree.id)
SELECT id, model_id, path FROM tree;
CREATE VIEW class_attributes AS
SELECT c.model_id, p.name AS package, c.id AS class_id, c.name AS class, a.position, a.id AS attribute_id,
  a.name AS attribute, t.name AS type,
  CASE a.visibility WHEN 1 THEN 'protected' WHEN 2 THEN 'private' WHEN 3 THEN 'package' ELSE 'public' END
    AS visibility,
  CASE WHEN a.is_optional THEN 'yes' ELSE 'no' END AS optional, a.initial_value, a.description
FROM classes c JOIN attributes a ON a.class_id = c.id
  LEFT JOIN types t ON t.id = a.type_id LEFT JOIN packages p ON p.id = c.package_id;
CREATE VIEW operation_arguments AS
SELECT o.model_id, c.id AS class_id, c.name AS class, o.id AS operation_id, o.name AS operation,
  rt.name AS return_type, a.position, a.name AS argument,
  CASE a.direction WHEN 1 THEN 'in' WHEN 2 THEN 'out' WHEN 3 THEN 'inout' WHEN 4 THEN 'return' END
    AS direction, t.name AS type
FROM operations o LEFT JOIN arguments a ON a.operation_id = o.id LEFT JOIN classes c ON c.id = o.class_id
  LEFT JOIN types rt ON rt.id = o.return_type_id LEFT JOIN types t ON t.id = a.type_id;
CREATE VIEW association_ends AS
SELECT a.model_id, a.id AS association_id, a.name AS association,
  c1.id AS class1_id, c1.name AS class1, r1.name AS role1, r1.multiplicity AS multiplicity1,
  c2.id AS class2_id, c2.name AS class2, r2.name AS role2, r2.multiplicity AS multiplicity2,
  CASE WHEN a.is_composite THEN 'composite' WHEN r1.is_aggregate OR r2.is_aggregate THEN 'shared'
    ELSE 'none' END AS aggregation
FROM associations a JOIN association_roles r1 ON r1.association_id = a.id
  JOIN association_roles r2 ON r2.association_id = a.id AND r2.id > r1.id
  LEFT JOIN classes c1 ON c1.id = r1.associated_class_id
  LEFT JOIN classes c2 ON c2.id = r2.associated_class_id;
CREATE VIEW class_supertypes AS
SELECT g.model_id, g.id AS generalization_id, c.id AS class_id, c.name AS class,
  s.id AS supertype_id, s.name AS supertype
FROM generalizations g
  JOIN generalization_roles cr ON cr.generalization_id = g.id AND NOT cr.is_supertype
  JOIN generalization_roles sr ON sr.generalization_id = g.id AND sr.is_supertype
  JOIN classes c ON c.id = cr.associated_class_id JOIN classes s ON s.id = sr.associated_class_id;
CREATE VIEW key_columns AS
SELECT k.model_id, c.id AS class_id, c.name AS class, k.id AS key_id, k.name AS key_name,
  CASE WHEN c.primary_key_id = k.id THEN 'primary key' ELSE k.kind END AS kind,
  ka.position, a.id AS attribute_id, a.name AS attribute,
  rc.name AS referenced_class, rk.name AS referenced_key
FROM keys k LEFT JOIN classes c ON c.id = k.class_id
  LEFT JOIN key_attributes ka ON ka.key_id = k.id LEFT JOIN attributes a ON a.id = ka.attribute_id
  LEFT JOIN keys rk ON rk.id = k.candidate_key_id LEFT JOIN classes rc ON rc.id = rk.class_id;
CREATE VIEW data_dictionary AS
SELECT c.model_id, s.name AS schema_name, c.id AS class_id,
  COALESCE(c.physical_name, c.name) AS table_name, a.position, a.id AS attribute_id,
  COALESCE(a.physical_name, a.name) AS column_name, t.name AS type, t.data_type, t.native_data_type,
  t.length, t.scale, CASE WHEN a.is_optional THEN 'yes' ELSE 'no' END AS nullable,
  CASE WHEN EXISTS (SELECT 1 FROM key_attributes ka
    WHERE ka.key_id = c.primary_key_id AND ka.attribute_id = a.id) THEN 'yes' ELSE 'no' END AS primary_key,
  a.initial_value, a.description
FROM classes c JOIN attributes a ON a.class_id = c.id
  LEFT JOIN types t ON t.id = a.type_id LEFT JOIN packages s ON s.id = c.data_package_id;
CREATE VIEW enumeration_values AS
SELECT t.model_id, t.id AS type_id, t.name AS type, v.position, v.name, v.value, v.description
FROM types t JOIN type_values v ON v.type_id = t.id;
CREATE VIEW object_properties AS
SELECT t.model_id, v.object_id, o.kind, o.name, t.name AS property, v.value
FROM property_values v JOIN property_types t ON t.id = v.property_type_id
  JOIN objects o ON o.id = v.object_id;
CREATE VIEW object_notes AS
SELECT n.model_id, n.object_id, o.kind, o.name, n.note_text
FROM notes n JOIN objects o ON o.id = n.object_id;
COMMIT;
