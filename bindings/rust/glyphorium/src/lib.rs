// SPDX-License-Identifier: MIT
//! The character catalog Glyphorium: search in five languages, names, code forms, usage notes, copying.
//!
//! ```
//! let arrow = glyphorium::character('→').unwrap();
//! assert_eq!(arrow.name(), "Rightwards Arrow");
//! assert_eq!(arrow.form("html").unwrap(), "&rarr;");
//! ```
//!
//! What is not here can be called through [`sys`], the C interface.

use std::ffi::CString;
use std::os::raw::c_char;
use std::ptr::{null, NonNull};

pub use glyphorium_sys as sys;

/// Copies an owned text of the library, and frees it. `None` if the pointer is null.
unsafe fn take(text: *mut c_char, size: usize) -> Option<String> {
    if text.is_null() {
        return None;
    }
    let bytes = std::slice::from_raw_parts(text.cast::<u8>(), size).to_vec();
    sys::glyphorium_free(text);
    String::from_utf8(bytes).ok()
}

/// Reads a borrowed text, which is valid as long as the object `_owner`.
fn borrow<T: ?Sized>(_owner: &T, text: sys::glyphorium_text) -> Option<&str> {
    if text.data.is_null() {
        return None;
    }
    // The library's texts are UTF-8, and belong to the owner.
    std::str::from_utf8(unsafe { std::slice::from_raw_parts(text.data.cast::<u8>(), text.size) }).ok()
}

/// One character of the catalog. It never changes.
pub struct Character(NonNull<sys::glyphorium_entity>);

// The library lets several threads read an object at once.
unsafe impl Send for Character {}
unsafe impl Sync for Character {}

impl Character {
    /// The character itself: "→".
    pub fn symbol(&self) -> &str {
        borrow(self, unsafe { sys::glyphorium_entity_symbol(self.0.as_ptr()) }).unwrap_or_default()
    }

    /// The name to show: "Rightwards Arrow". Empty if the character has no name.
    pub fn name(&self) -> &str {
        borrow(self, unsafe { sys::glyphorium_entity_name(self.0.as_ptr()) }).unwrap_or_default()
    }

    /// The group of the catalog: "arrows". Empty if the character is not in the catalog.
    pub fn group(&self) -> &str {
        borrow(self, unsafe { sys::glyphorium_entity_group(self.0.as_ptr()) }).unwrap_or_default()
    }

    /// The code in hexadecimal, lower case, at least four digits: "2192".
    pub fn hex(&self) -> &str {
        borrow(self, unsafe { sys::glyphorium_entity_hex(self.0.as_ptr()) }).unwrap_or_default()
    }

    /// The character in one of the forms in which it can be copied: "html" gives "&rarr;". `None` if the
    /// character does not have this form, or if there is no such form. [`forms`] lists all forms.
    pub fn form(&self, form: &str) -> Option<String> {
        let form = CString::new(form).ok()?;
        let mut size = 0;
        unsafe {
            take(
                sys::glyphorium_entity_form(self.0.as_ptr(), form.as_ptr(), &mut size),
                size,
            )
        }
    }

    /// The usage note in the user's language, or else in English.
    pub fn note(&self) -> Option<String> {
        let mut size = 0;
        unsafe { take(sys::glyphorium_entity_localized_note(self.0.as_ptr(), &mut size), size) }
    }
}

impl Clone for Character {
    /// Panics if memory runs out.
    fn clone(&self) -> Self {
        let copy = unsafe { sys::glyphorium_entity_copy(self.0.as_ptr()) };
        Character(NonNull::new(copy).expect("out of memory"))
    }
}

impl Drop for Character {
    fn drop(&mut self) {
        unsafe { sys::glyphorium_entity_free(self.0.as_ptr()) }
    }
}

impl std::fmt::Debug for Character {
    fn fmt(&self, output: &mut std::fmt::Formatter<'_>) -> std::fmt::Result {
        write!(output, "Character({}, {:?})", self.hex(), self.name())
    }
}

/// The character as the catalog describes it. `None` only if memory runs out.
pub fn character(character: char) -> Option<Character> {
    NonNull::new(unsafe { sys::glyphorium_entity_of(character.into()) }).map(Character)
}

/// The identifiers of the forms in which a character can be copied, in the order in which hosts show them.
pub fn forms() -> Vec<String> {
    let count = unsafe { sys::glyphorium_form_count() };
    (0..count)
        .filter_map(|index| borrow(&(), unsafe { sys::glyphorium_form_identifier(index) }).map(str::to_owned))
        .collect()
}

/// A search over the whole catalog and the characters that the user had added when the search was created.
pub struct Search(NonNull<sys::glyphorium_search>);

// A search never changes; any number of threads may query it at once.
unsafe impl Send for Search {}
unsafe impl Sync for Search {}

impl Search {
    /// Takes about a millisecond. `None` only if memory runs out.
    pub fn new() -> Option<Search> {
        NonNull::new(unsafe { sys::glyphorium_search_all() }).map(Search)
    }

    /// The characters that match a text, the best first, at most `limit`. The text may contain words, codes,
    /// references and characters. A text with U+0000 matches nothing.
    pub fn query(&self, text: &str, limit: usize) -> Vec<Character> {
        let text = match CString::new(text) {
            Ok(text) => text,
            Err(_) => return Vec::new(),
        };
        let options = sys::glyphorium_search_options {
            struct_size: std::mem::size_of::<sys::glyphorium_search_options>(),
            limit,
            languages: null(),
            language_count: 0,
            groups: null(),
            group_count: 0,
        };
        unsafe {
            let results = sys::glyphorium_search_query(self.0.as_ptr(), text.as_ptr(), &options);
            let characters = (0..sys::glyphorium_results_count(results))
                .map(|index| sys::glyphorium_entity_copy(sys::glyphorium_results_entity(results, index)))
                .filter_map(|copy| NonNull::new(copy).map(Character))
                .collect();
            sys::glyphorium_results_free(results);
            characters
        }
    }
}

impl Drop for Search {
    fn drop(&mut self) {
        unsafe { sys::glyphorium_search_free(self.0.as_ptr()) }
    }
}

/// Replaces the content of the clipboard. Returns whether the clipboard accepted the text.
pub fn copy(text: &str) -> bool {
    unsafe { sys::glyphorium_copy(text.as_ptr().cast(), text.len(), null()) }
}
