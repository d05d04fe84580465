// SPDX-License-Identifier: MIT
//! Finds libglyphorium with pkg-config, or in the folder that GLYPHORIUM_LIBRARY_FOLDER names.
use std::process::Command;

fn main() {
    println!("cargo:rerun-if-env-changed=GLYPHORIUM_LIBRARY_FOLDER");
    println!("cargo:rerun-if-env-changed=PKG_CONFIG_PATH");
    if let Ok(folder) = std::env::var("GLYPHORIUM_LIBRARY_FOLDER") {
        println!("cargo:rustc-link-search=native={folder}");
    } else {
        let answer = Command::new("pkg-config")
            .args(["--libs-only-L", "glyphorium >= 1.0"])
            .output();
        let answer = answer.unwrap_or_else(|error| fail(&format!("pkg-config does not run: {error}")));
        if !answer.status.success() {
            fail(&format!(
                "libglyphorium is not installed: {}",
                String::from_utf8_lossy(&answer.stderr)
            ));
        }
        for option in String::from_utf8_lossy(&answer.stdout).split_whitespace() {
            println!("cargo:rustc-link-search=native={}", option.trim_start_matches("-L"));
        }
    }
    println!("cargo:rustc-link-lib=glyphorium");
}

fn fail(reason: &str) -> ! {
    eprintln!("{reason}");
    std::process::exit(1);
}
