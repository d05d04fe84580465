// SPDX-License-Identifier: MIT
//! Finds characters by words:  cargo run --example find arrow left
fn main() {
    let words = std::env::args().skip(1).collect::<Vec<_>>().join(" ");
    let search = glyphorium::Search::new().expect("out of memory");
    for character in search.query(&words, 5) {
        println!(
            "{}  {}  {}",
            character.symbol(),
            character.form("code-point").unwrap_or_default(),
            character.name()
        );
    }
}
