// SPDX-License-Identifier: MIT
use glyphorium::{character, forms, Search};

#[test]
fn texts_outlive_their_results() {
    let found = Search::new().unwrap().query("arrow left", 2);
    assert_eq!(found.len(), 2);
    assert_eq!(
        (found[0].symbol(), found[0].name(), found[0].group()),
        ("←", "Leftwards Arrow", "arrows")
    );
    let copy = found[0].clone();
    drop(found);
    assert_eq!(copy.hex(), "2190");
}

#[test]
fn unusual_characters_and_texts() {
    assert_eq!(character('\0').unwrap().symbol(), "\0");
    assert_eq!(character('\u{10FFFF}').unwrap().group(), "");
    assert_eq!(character('→').unwrap().form("no such form"), None);
    assert_eq!(character('→').unwrap().form("html\0"), None);
    assert!(Search::new().unwrap().query("arrow\0", 5).is_empty());
    assert!(forms().contains(&"utf-8".to_owned()));
    assert!(character('\u{2019}').unwrap().note().unwrap().len() > 20);
}

#[test]
fn a_search_serves_several_threads() {
    let search = Search::new().unwrap();
    std::thread::scope(|threads| {
        for (text, symbol) in [("euro", "€"), ("ellipsis", "…"), ("&rarr;", "→")] {
            let search = &search;
            threads.spawn(move || assert_eq!(search.query(text, 1)[0].symbol(), symbol));
        }
    });
}
