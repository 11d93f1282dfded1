#pragma once

// What assistive programs, like screen readers, get from the toolkit's own widgets. Names and
// descriptions are the widgets' accessibleName and accessibleDescription.
namespace glonks {

// Gives pages, pictures and drop-down lists their roles. Once, after the application is made.
void installAccessibleRoles();

}  // namespace glonks
